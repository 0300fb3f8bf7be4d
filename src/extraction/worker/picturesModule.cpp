// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "extraction/pictures/decodeWithQt.h"
#include "extraction/pictures/makeThumbnail.h"
#include "extraction/worker/ReaderModules.h"

using namespace Varlo;

static PicturePreview toPreview(const QImage &picture)
{
    const qsizetype rowBytes = qsizetype { picture.width() } * 3; // a QImage's rows are longer by up to three bytes
    PicturePreview preview { picture.size(), {} };
    preview.pixels.reserve(rowBytes * picture.height());
    for (int row = 0; row < picture.height(); ++row)
        preview.pixels.append(reinterpret_cast<const char *>(picture.constScanLine(row)), rowBytes);
    return preview;
}

static std::variant<PicturePreview, NoTextFound, NeedsFurtherDecoder> preview(
    const FileDescriptor &file, std::string_view extension, int longestSide, PictureDecoder *furtherDecoder)
{
    const auto thumbnail = makeThumbnail(file, extension, longestSide, furtherDecoder);
    if (thumbnail)
        return toPreview(*thumbnail);
    if (thumbnail.error() == ThumbnailError::NeedsFurtherDecoder)
        return NeedsFurtherDecoder {};
    return NoTextFound {};
}

extern "C" Q_DECL_EXPORT void varloPictures2(PicturesModule &module)
{
    module.read = readImage;
    module.preview = preview;
    module.missingFormats = loadQtFormats();
}
