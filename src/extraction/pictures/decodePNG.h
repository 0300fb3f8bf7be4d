// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "extraction/pictures/PictureRows.h"
#include "platform/FileDescriptor.h"

namespace Varlo {

/// Decodes a PNG (ISO/IEC 15948), row by row unless it is interlaced. Of a damaged or truncated file come the rows
/// before the damage. False where nothing can be decoded.
[[nodiscard]] bool decodePNG(const FileDescriptor &file, PictureRows &rows);

} // namespace Varlo
