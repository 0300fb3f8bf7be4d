// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "extraction/pictures/readPhotoFacts.h"

#include "extraction/pictures/PictureKind.h"
#include "platform/linux/MappedFile.h"
#include <algorithm>
#include <cstdint>
#include <exiv2/exiv2.hpp>
#include <mutex>
#include <QStringDecoder>

namespace Varlo {

static void prepareExiv2()
{
    static std::once_flag isPrepared;
    std::call_once(isPrepared, [] {
        Exiv2::LogMsg::setLevel(Exiv2::LogMsg::mute); // it would write of each odd byte to standard error
        Exiv2::XmpParser::initialize(); // at its first use otherwise, and not safe there on several threads
#if !EXIV2_TEST_VERSION(0, 28, 0) // from there on HEIF is read without being asked for
        Exiv2::enableBMFF();
#endif
    });
}

/// EXIF says ASCII; cameras write UTF-8 and Latin-1 too. Absent where the field is missing or not a string.
static std::optional<QString> string(const Exiv2::ExifData &exif, const char *key)
{
    const auto field = exif.findKey(Exiv2::ExifKey(key));
    if (field == exif.end() || field->typeId() != Exiv2::asciiString)
        return std::nullopt;
    const std::string value = field->toString();
    const QByteArrayView bytes(value.data(), static_cast<qsizetype>(value.size()));
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    QString text = decoder.decode(bytes);
    return decoder.hasError() ? QString::fromLatin1(bytes) : text;
}

static std::int64_t integer(const Exiv2::Exifdatum &field)
{
#if EXIV2_TEST_VERSION(0, 28, 0)
    return field.toInt64();
#else
    return field.toLong();
#endif
}

static int orientationTag(const Exiv2::ExifData &exif)
{
    const auto field = exif.findKey(Exiv2::ExifKey("Exif.Image.Orientation"));
    if (field == exif.end() || field->count() == 0)
        return 1;
    const std::int64_t value = integer(*field);
    return value >= 1 && value <= 8 ? static_cast<int>(value) : 1;
}

/// Exiv2 itself opens much that is no business of ours, raw photos and PostScript among it.
static bool mayHaveFacts(QByteArrayView fileContent)
{
    switch (pictureKind(fileContent, {}).value_or(PictureKind::TGA)) {
    case PictureKind::JPEG:
    case PictureKind::PNG:
    case PictureKind::WebP:
    case PictureKind::TIFF:
    case PictureKind::HEIF:
        return true;
    default:
        return false;
    }
}

PhotoFacts readPhotoFacts(QByteArrayView fileContent)
{
    if (!mayHaveFacts(fileContent.first(std::min(fileContent.size(), pictureKindBytes))))
        return {};
    try {
        prepareExiv2();
        const auto image = Exiv2::ImageFactory::open(
            reinterpret_cast<const Exiv2::byte *>(fileContent.data()), static_cast<long>(fileContent.size()));
        image->readMetadata();
        const Exiv2::ExifData &exif = image->exifData();
        PhotoFacts facts;
        facts.captureDate = string(exif, "Exif.Photo.DateTimeOriginal");
        facts.make = string(exif, "Exif.Image.Make").value_or(QString()).trimmed();
        facts.model = string(exif, "Exif.Image.Model").value_or(QString()).trimmed();
        facts.orientation = orientationTag(exif);
        return facts;
    } catch (const std::exception &) {
        return {}; // Exiv2 reports damaged and foreign files so, and we can only go without
    }
}

PhotoFacts readPhotoFacts(const FileDescriptor &file) { return readPhotoFacts(MappedFile(file).bytes()); }

} // namespace Varlo
