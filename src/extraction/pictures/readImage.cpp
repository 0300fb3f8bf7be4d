// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "extraction/pictures/readImage.h"

#include "extraction/pictures/encodeJPEG.h"
#include "extraction/pictures/makeThumbnail.h"
#include "extraction/pictures/photoMetadataBlock.h"

namespace Varlo {

using namespace Qt::StringLiterals;

// More than this the model would shrink itself.
static constexpr int longestSide = 1568;

std::variant<Extraction, NeedsFurtherDecoder> readImage(
    const FileDescriptor &file, std::string_view extension, PictureDecoder *furtherDecoder)
{
    const PhotoFacts facts = readPhotoFacts(file);
    const auto thumbnail = makeThumbnail(file, extension, longestSide, facts.orientation, furtherDecoder);
    if (!thumbnail && thumbnail.error() == ThumbnailError::NeedsFurtherDecoder)
        return NeedsFurtherDecoder {};
    const QByteArray jpeg = thumbnail ? encodeJPEG(*thumbnail) : QByteArray();
    if (jpeg.isEmpty())
        return NoTextFound {};
    return FileContent(ImageContent { jpeg, u"image/jpeg"_s, photoMetadataBlock(facts, fileCreationDateString(file)) });
}

} // namespace Varlo
