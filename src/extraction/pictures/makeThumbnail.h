// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "extraction/pictures/PictureDecoder.h"
#include "platform/FileDescriptor.h"
#include "platform/Result.h"
#include <QImage>
#include <string_view>

namespace Varlo {

enum class ThumbnailError {
    NoPicture, ///< not a picture, damaged from its start, or beyond every bound
    NeedsFurtherDecoder, ///< of a kind that the further decoder reads, and none was given
};

/// The first picture of the file: upright, opaque on white, in sRGB, with square pixels, its longer side at most
/// `longestSide` pixels, never enlarged. In Format_RGB888. What kind of picture it is its content tells; the extension
/// (in lower case) counts for TGA alone. `furtherDecoder` reads TIFF, HEIF and AVIF; it may be null.
[[nodiscard]] Result<QImage, ThumbnailError> makeThumbnail(
    const FileDescriptor &file, std::string_view extension, int longestSide, PictureDecoder *furtherDecoder);

/// The same where the photo's EXIF orientation is known already.
[[nodiscard]] Result<QImage, ThumbnailError> makeThumbnail(const FileDescriptor &file, std::string_view extension,
    int longestSide, int orientation, PictureDecoder *furtherDecoder);

} // namespace Varlo
