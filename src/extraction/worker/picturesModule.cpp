// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "extraction/pictures/encodeJPEG.h"
#include "extraction/pictures/makeThumbnail.h"
#include "extraction/worker/ReaderModules.h"
#include <QImageReader>

using namespace Varlo;

static std::variant<QByteArray, NeedsFurtherDecoder> preview(
    const FileDescriptor &file, std::string_view extension, int longestSide, PictureDecoder *furtherDecoder)
{
    const auto thumbnail = makeThumbnail(file, extension, longestSide, furtherDecoder);
    if (thumbnail)
        return encodeJPEG(*thumbnail);
    if (thumbnail.error() == ThumbnailError::NeedsFurtherDecoder)
        return NeedsFurtherDecoder {};
    return QByteArray();
}

extern "C" Q_DECL_EXPORT void varloPictures1(PicturesModule &module)
{
    module.read = readImage;
    module.preview = preview;
    // Also loads Qt's plugins, which a worker would otherwise do each time.
    const QList<QByteArray> formats = QImageReader::supportedImageFormats();
    for (const char *const format : { "gif", "bmp", "ico", "icns" }) {
        if (!formats.contains(format))
            module.missingFormats.append(QString::fromLatin1(format));
    }
}
