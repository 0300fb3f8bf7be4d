// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <QByteArrayView>
#include <QSize>

namespace Varlo {

/// The pixels of a JPEG as its frame header states them (ITU-T T.81, B.2.2). Nothing where the bytes do not begin like
/// a JPEG, end before that header, or state no pixels. Looks at the markers only and decodes nothing.
[[nodiscard]] std::optional<QSize> jpegSize(QByteArrayView bytes);

} // namespace Varlo
