// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "extraction/pictures/PictureKind.h"

#include <algorithm>
#include <array>

namespace Varlo {

namespace {
struct Signature {
    QByteArrayView bytes;
    PictureKind kind;
};
} // namespace

static constexpr std::array signatures {
    Signature { { "\xFF\xD8\xFF", 3 }, PictureKind::JPEG },
    Signature { { "\x89PNG\r\n\x1A\n", 8 }, PictureKind::PNG },
    Signature { { "GIF8", 4 }, PictureKind::GIF },
    Signature { { "BM", 2 }, PictureKind::BMP },
    Signature { { "\0\0\1\0", 4 }, PictureKind::ICO },
    Signature { { "icns", 4 }, PictureKind::ICNS },
    Signature { { "\x76\x2F\x31\x01", 4 }, PictureKind::EXR },
    Signature { { "II*\0", 4 }, PictureKind::TIFF },
    Signature { { "MM\0*", 4 }, PictureKind::TIFF },
    Signature { { "II+\0", 4 }, PictureKind::TIFF }, // offsets of 64 bits
    Signature { { "MM\0+", 4 }, PictureKind::TIFF },
};

// Brands of ISO/IEC 23008-12 (HEIF), its HEVC profiles and AVIF.
static constexpr std::array<QByteArrayView, 10> heifBrands { { "mif1", "msf1", "heic", "heix", "heim", "heis", "hevc",
    "hevx", "avif", "avis" } };

static bool isHEIF(QByteArrayView bytes)
{
    if (bytes.size() < 12 || bytes.sliced(4, 4) != QByteArrayView("ftyp"))
        return false;
    // The major brand may be a vendor's; then a compatible one, listed behind the version, tells.
    for (qsizetype offset = 8; offset + 4 <= bytes.size(); offset += 4) {
        if (offset != 12
            && std::find(heifBrands.begin(), heifBrands.end(), bytes.sliced(offset, 4)) != heifBrands.end())
            return true;
    }
    return false;
}

std::optional<PictureKind> pictureKind(QByteArrayView firstBytes, std::string_view extension)
{
    for (const Signature &signature : signatures) {
        if (firstBytes.startsWith(signature.bytes))
            return signature.kind;
    }
    if (firstBytes.size() >= 12 && firstBytes.startsWith("RIFF") && firstBytes.sliced(8, 4) == QByteArrayView("WEBP"))
        return PictureKind::WebP;
    if (isHEIF(firstBytes))
        return PictureKind::HEIF;
    if (extension == "tga")
        return PictureKind::TGA;
    return std::nullopt;
}

} // namespace Varlo
