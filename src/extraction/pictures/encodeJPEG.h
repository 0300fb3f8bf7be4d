// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QImage>

namespace Varlo {

/// The picture (Format_RGB888) as a JPEG of quality 80 of 100. Empty where there is not enough memory.
[[nodiscard]] QByteArray encodeJPEG(const QImage &image);

} // namespace Varlo
