// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "extraction/pictures/PictureRows.h"
#include "platform/FileDescriptor.h"

namespace Varlo {

/// Decodes the first part of an OpenEXR file: RGB and luminance, scan lines and tiles. Light is shown as it falls, with
/// everything brighter than white as white. Of a truncated file come the rows before its end. False where nothing can
/// be decoded.
[[nodiscard]] bool decodeEXR(const FileDescriptor &file, PictureRows &rows);

} // namespace Varlo
