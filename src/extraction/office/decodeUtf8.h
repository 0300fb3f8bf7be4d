// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArrayView>
#include <QString>

namespace Varlo {

/// Decodes UTF-8 as it stands: U+FFFD for what is none, and unlike QString::fromUtf8() with a U+FEFF at the front,
/// which inside a document is a character like any other.
[[nodiscard]] QString decodeUtf8(QByteArrayView bytes);

} // namespace Varlo
