// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "extraction/pictures/makeThumbnail.h"

#include "extraction/pictures/BufferedFile.h"
#include "extraction/pictures/decodeEXR.h"
#include "extraction/pictures/decodeJPEG.h"
#include "extraction/pictures/decodePNG.h"
#include "extraction/pictures/decodeTGA.h"
#include "extraction/pictures/decodeWebP.h"
#include "extraction/pictures/decodeWithQt.h"
#include "extraction/pictures/PictureKind.h"
#include "extraction/pictures/readPhotoFacts.h"
#include "extraction/pictures/ThumbnailBuilder.h"
#include <QTransform>

namespace Varlo {

static std::optional<PictureKind> kindOf(const FileDescriptor &file, std::string_view extension)
{
    BufferedFile start(file);
    const auto bytes = start.next();
    return pictureKind(QByteArrayView(bytes.data(), qsizetype(bytes.size()))
                           .first(std::min(qsizetype(bytes.size()), pictureKindBytes)),
        extension);
}

/// Turns and mirrors the picture so that EXIF's orientation becomes 1 (Exif 2.32, tag 274).
static QImage upright(const QImage &image, int orientation)
{
    const auto turned = [&](int degrees) { return image.transformed(QTransform().rotate(degrees)); };
    switch (orientation) {
    case 2:
        return image.mirrored(true, false);
    case 3:
        return image.mirrored(true, true);
    case 4:
        return image.mirrored(false, true);
    case 5:
        return turned(90).mirrored(true, false);
    case 6:
        return turned(90);
    case 7:
        return turned(90).mirrored(false, true);
    case 8:
        return turned(270);
    default:
        return image;
    }
}

static bool decode(
    PictureKind kind, const FileDescriptor &file, int longestSide, PictureDecoder *furtherDecoder, PictureRows &rows)
{
    switch (kind) {
    case PictureKind::JPEG:
        return decodeJPEG(file, longestSide, rows);
    case PictureKind::PNG:
        return decodePNG(file, rows);
    case PictureKind::GIF:
    case PictureKind::BMP:
    case PictureKind::ICO:
    case PictureKind::ICNS:
        return decodeWithQt(file, kind, rows);
    case PictureKind::EXR:
        return decodeEXR(file, rows);
    case PictureKind::TGA:
        return decodeTGA(file, rows);
    case PictureKind::WebP:
        return decodeWebP(file, longestSide, rows);
    case PictureKind::TIFF:
    case PictureKind::HEIF:
        return furtherDecoder && furtherDecoder->decode(file, rows);
    }
    return false;
}

static bool isForFurtherDecoder(PictureKind kind) { return kind == PictureKind::TIFF || kind == PictureKind::HEIF; }

Result<QImage, ThumbnailError> makeThumbnail(
    const FileDescriptor &file, std::string_view extension, int longestSide, PictureDecoder *furtherDecoder)
{
    return makeThumbnail(file, extension, longestSide, readPhotoFacts(file).orientation, furtherDecoder);
}

Result<QImage, ThumbnailError> makeThumbnail(const FileDescriptor &file, std::string_view extension, int longestSide,
    int orientation, PictureDecoder *furtherDecoder)
{
    const auto kind = kindOf(file, extension);
    if (!kind)
        return tl::unexpected(ThumbnailError::NoPicture);
    if (isForFurtherDecoder(*kind) && !furtherDecoder)
        return tl::unexpected(ThumbnailError::NeedsFurtherDecoder);
    ThumbnailBuilder builder(longestSide);
    if (!decode(*kind, file, longestSide, furtherDecoder, builder))
        return tl::unexpected(ThumbnailError::NoPicture);
    const auto thumbnail = builder.finish();
    if (!thumbnail)
        return tl::unexpected(ThumbnailError::NoPicture);
    // HEIF describes how to turn the picture beside EXIF, and its decoder has done so.
    return *kind == PictureKind::HEIF ? *thumbnail : upright(*thumbnail, orientation);
}

} // namespace Varlo
