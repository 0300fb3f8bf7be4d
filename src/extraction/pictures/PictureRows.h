// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QSize>

namespace Varlo {

/// How the samples of a row follow each other, eight bits each.
enum class PixelLayout {
    RGB,
    RGBA, ///< alpha last, not multiplied into the colours
    InvertedCMYK, ///< as Adobe's programs write it into a JPEG: 255 is no ink
};
[[nodiscard]] constexpr int samplesPerPixel(PixelLayout layout) { return layout == PixelLayout::RGB ? 3 : 4; }

/// What a decoder knows before the first row.
struct PictureHeader {
    QSize size; ///< of the rows that follow, in pixels
    PixelLayout layout = PixelLayout::RGB;
    QByteArray colourProfile = {}; ///< an ICC profile that says what the samples mean; empty means sRGB
    double pixelAspect = 1; ///< width of one pixel divided by its height
    bool isBottomUp = false; ///< the last row comes first
    bool isRightToLeft = false; ///< the last pixel of each row comes first
};

/// Takes a picture from its decoder: the header, then every row.
struct PictureRows {
    virtual ~PictureRows() = default;
    /// False where the picture is not wanted (too large, or nothing); the decoder then stops.
    [[nodiscard]] virtual bool begin(const PictureHeader &header) = 0;
    virtual void addRow(const uchar *samples) = 0;
};

/// More is refused before anything is decoded: 400 megapixels.
[[nodiscard]] constexpr bool isTooLarge(qint64 width, qint64 height)
{
    constexpr qint64 limit = 400'000'000;
    return width <= 0 || height <= 0 || width > limit / height;
}

} // namespace Varlo
