// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "extraction/pictures/PictureRows.h"
#include "platform/FileDescriptor.h"

namespace Varlo {

/// Decodes a Truevision TGA (version 2.0): colour-mapped, true-colour and grey, plain and run-length encoded, 8
/// to 32 bits a pixel, from any of the four corners. Of a truncated file come the rows that are whole. False where the
/// bytes cannot be a TGA.
[[nodiscard]] bool decodeTGA(const FileDescriptor &file, PictureRows &rows);

} // namespace Varlo
