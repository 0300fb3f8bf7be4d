// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArrayView>
#include <QString>

namespace Varlo {

/// The text elements of one part of an office document, joined by spaces. Of a part that is damaged, or has more than
/// 12,000 characters, the text up to there. Pure.
[[nodiscard]] QString collectXMLText(QByteArrayView part);

} // namespace Varlo
