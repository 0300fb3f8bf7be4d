// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "extraction/pictures/PictureRows.h"
#include "platform/FileDescriptor.h"

namespace Varlo {

/// Decodes what is left to a module of its own, since its libraries are large: TIFF, HEIF and AVIF.
struct PictureDecoder {
    virtual ~PictureDecoder() = default;
    /// The first picture of the file. Of a damaged file comes what can be decoded. False where that is nothing.
    [[nodiscard]] virtual bool decode(const FileDescriptor &file, PictureRows &rows) = 0;
};

} // namespace Varlo
