// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "extraction/pdf/renderFirstPage.h"

#include "extraction/pdf/PDFDocument.h"
#include "extraction/pdf/renderPage.h"
#include <algorithm>

namespace Varlo {

constexpr double mostResolution = 300; // pixels an inch

static PicturePreview toPreview(const poppler::image &image)
{
    const int rowBytes = image.width() * 3;
    PicturePreview preview { { image.width(), image.height() }, {} };
    preview.pixels.reserve(qsizetype { rowBytes } * image.height());
    for (int row = 0; row < image.height(); ++row)
        preview.pixels.append(image.const_data() + qsizetype { row } * image.bytes_per_row(), rowBytes);
    return preview;
}

std::optional<PicturePreview> renderFirstPage(const FileDescriptor &file, int longestSide)
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
    return toPreview(rendered->image);
}

} // namespace Varlo
