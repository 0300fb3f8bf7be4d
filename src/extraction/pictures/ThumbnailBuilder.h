// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "extraction/pictures/AreaScaler.h"
#include "extraction/pictures/PictureRows.h"
#include "extraction/pictures/ProfileConversion.h"
#include <optional>
#include <QImage>
#include <vector>

namespace Varlo {

/// Makes the small picture while the large one is decoded: opaque on white, in sRGB, with square pixels, never
/// enlarged. It is not turned upright.
class ThumbnailBuilder final : public PictureRows {
public:
    explicit ThumbnailBuilder(int longestSide)
        : m_longestSide(longestSide)
    {
    }
    [[nodiscard]] bool begin(const PictureHeader &header) override;
    void addRow(const uchar *samples) override;
    /// The picture, in Format_RGB888. What rows a truncated file did not have are white. Absent where not a single
    /// row came.
    [[nodiscard]] std::optional<QImage> finish();

private:
    [[nodiscard]] const uchar *toRGB(const uchar *samples);

    int m_longestSide;
    PictureHeader m_header;
    std::optional<AreaScaler> m_scaler;
    std::optional<ProfileConversion> m_conversion;
    std::vector<uchar> m_rgb; ///< one row of the source
    QImage m_thumbnail;
    int m_sourceRows = 0;
    int m_thumbnailRows = 0;
};

} // namespace Varlo
