// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "extraction/pictures/PictureRows.h"
#include "platform/FileDescriptor.h"

namespace Varlo {

/// Decodes a JPEG (ITU-T T.81: baseline, progressive, arithmetic; grey, YCbCr, RGB, CMYK). The decoder itself shrinks
/// the picture by 2, 4 or 8, so long as its longer side keeps `longestSide` pixels. Of a damaged or truncated file
/// comes what can be decoded. False where that is nothing.
[[nodiscard]] bool decodeJPEG(const FileDescriptor &file, int longestSide, PictureRows &rows);

} // namespace Varlo
