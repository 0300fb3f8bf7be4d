// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "extraction/pictures/ThumbnailBuilder.h"

#include <algorithm>
#include <cmath>
#include <cstring>

namespace Varlo {

/// Fax machines and scanners save pixels that are not square; beyond this the file must be lying.
static bool isBelievableAspect(double aspect) { return aspect > 0.2 && aspect < 5 && std::abs(aspect - 1) > 0.01; }

static QSize thumbnailSize(const PictureHeader &header, int longestSide)
{
    double width = header.size.width();
    double height = header.size.height();
    if (isBelievableAspect(header.pixelAspect)) {
        width *= std::min(header.pixelAspect, 1.0);
        height /= std::max(header.pixelAspect, 1.0);
    }
    const double scale = std::min(1.0, longestSide / std::max(width, height));
    const auto side = [&](double length) { return std::max(1, int(std::lround(length * scale))); };
    return { side(width), side(height) };
}

bool ThumbnailBuilder::begin(const PictureHeader &header)
{
    if (isTooLarge(header.size.width(), header.size.height()))
        return false;
    m_header = header;
    const QSize size = thumbnailSize(header, m_longestSide);
    m_thumbnail = QImage(size, QImage::Format_RGB888);
    if (m_thumbnail.isNull())
        return false;
    m_scaler.emplace(header.size, size);
    m_conversion = ProfileConversion::make(header.colourProfile,
        header.layout == PixelLayout::InvertedCMYK ? PixelLayout::InvertedCMYK : PixelLayout::RGB);
    m_rgb.resize(size_t(header.size.width()) * 3);
    return true;
}

static void layOnWhite(const uchar *rgba, uchar *rgb, int pixels)
{
    for (int x = 0; x < pixels; ++x, rgba += 4) {
        const int alpha = rgba[3];
        for (int i = 0; i < 3; ++i)
            *rgb++ = uchar((rgba[i] * alpha + 255 * (255 - alpha) + 127) / 255);
    }
}

/// What screens show for inks that nothing describes.
static void mixInks(const uchar *invertedCMYK, uchar *rgb, int pixels)
{
    for (int x = 0; x < pixels; ++x, invertedCMYK += 4) {
        for (int i = 0; i < 3; ++i)
            *rgb++ = uchar((invertedCMYK[i] * invertedCMYK[3] + 127) / 255);
    }
}

const uchar *ThumbnailBuilder::toRGB(const uchar *samples)
{
    const int pixels = m_header.size.width();
    switch (m_header.layout) {
    case PixelLayout::RGB:
        return samples;
    case PixelLayout::RGBA:
        layOnWhite(samples, m_rgb.data(), pixels);
        break;
    case PixelLayout::InvertedCMYK:
        if (m_conversion)
            m_conversion->convert(samples, m_rgb.data(), pixels);
        else
            mixInks(samples, m_rgb.data(), pixels);
        break;
    }
    return m_rgb.data();
}

void ThumbnailBuilder::addRow(const uchar *samples)
{
    if (!m_scaler || m_sourceRows == m_header.size.height())
        return;
    ++m_sourceRows;
    const uchar *const finished = m_scaler->addRow(toRGB(samples));
    if (!finished || m_thumbnailRows == m_thumbnail.height())
        return;
    uchar *const target = m_thumbnail.scanLine(m_thumbnailRows++);
    // After shrinking there is less to convert. Inks already have been.
    if (m_conversion && m_header.layout != PixelLayout::InvertedCMYK)
        m_conversion->convert(finished, target, m_thumbnail.width());
    else
        std::memcpy(target, finished, size_t(m_thumbnail.width()) * 3);
}

std::optional<QImage> ThumbnailBuilder::finish()
{
    if (m_sourceRows == 0)
        return std::nullopt;
    // Not before the rows come: libraries need most memory at their start, and untouched memory costs none.
    for (; m_thumbnailRows < m_thumbnail.height(); ++m_thumbnailRows)
        std::memset(m_thumbnail.scanLine(m_thumbnailRows), 255, size_t(m_thumbnail.bytesPerLine()));
    return m_thumbnail.mirrored(m_header.isRightToLeft, m_header.isBottomUp);
}

} // namespace Varlo
