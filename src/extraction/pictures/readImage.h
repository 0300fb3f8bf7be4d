// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "extraction/Extraction.h"
#include "extraction/pictures/PictureDecoder.h"
#include "platform/FileDescriptor.h"
#include <string_view>

namespace Varlo {

/// The picture is of a kind that the further decoder reads, and none was given. Load it and ask again.
struct NeedsFurtherDecoder {
    bool operator==(const NeedsFurtherDecoder &) const = default;
};

/// Reads a picture for the model: a JPEG of makeThumbnail()'s picture, its longer side at most 1568 pixels, and what
/// the file tells of date and camera. NoTextFound where there is no picture in it.
[[nodiscard]] std::variant<Extraction, NeedsFurtherDecoder> readImage(
    const FileDescriptor &file, std::string_view extension, PictureDecoder *furtherDecoder);

} // namespace Varlo
