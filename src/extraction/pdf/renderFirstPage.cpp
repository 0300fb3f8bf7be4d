// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "extraction/pdf/renderFirstPage.h"

#include "extraction/pdf/PDFDocument.h"
#include "extraction/pdf/renderPage.h"
#include <algorithm>
#include <memory>
#include <turbojpeg.h>

namespace Varlo {

constexpr double mostResolution = 300; // pixels an inch
constexpr int jpegQuality = 85;

static std::optional<QByteArray> encodeJPEG(const poppler::image &image)
{
    const std::unique_ptr<void, decltype(&tjDestroy)> encoder(tjInitCompress(), tjDestroy);
    unsigned char *bytes = nullptr;
    unsigned long size = 0;
    const int outcome = tjCompress2(encoder.get(), reinterpret_cast<const unsigned char *>(image.const_data()),
        image.width(), image.bytes_per_row(), image.height(), TJPF_RGB, &bytes, &size, TJSAMP_444, jpegQuality, 0);
    const std::unique_ptr<unsigned char, decltype(&tjFree)> owner(bytes, tjFree);
    if (outcome != 0)
        return std::nullopt;
    return QByteArray(reinterpret_cast<const char *>(bytes), static_cast<qsizetype>(size));
}

std::optional<QByteArray> renderFirstPage(const FileDescriptor &file, int longestSide)
{
    const auto document = PDFDocument::open(file);
    const auto page = document ? document->page(0) : nullptr;
    if (!page || longestSide <= 0)
        return std::nullopt;
    const poppler::rectf box = page->page_rect(poppler::crop_box);
    const double longestPoints = std::max(box.width(), box.height());
    const auto rendered
        = renderPage(*page, poppler::image::format_rgb24, std::min(mostResolution, longestSide * 72.0 / longestPoints));
    if (!rendered)
        return std::nullopt;
    return encodeJPEG(rendered->image);
}

} // namespace Varlo
