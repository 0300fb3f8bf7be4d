// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "extraction/pictures/PictureRows.h"
#include "platform/FileDescriptor.h"

namespace Varlo {

/// Decodes a WebP file; of one that moves, the first frame. What comes is shrunk to `longestSide` where it is larger.
/// Of a truncated file come the rows that are there. False where nothing can be decoded.
[[nodiscard]] bool decodeWebP(const FileDescriptor &file, int longestSide, PictureRows &rows);

} // namespace Varlo
