// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>
#include <QSize>
#include <vector>

namespace Varlo {

/// Shrinks a picture while its rows come in, so that it never stands in memory at full size. Each pixel of the result
/// is the mean of the area that it covers.
class AreaScaler {
public:
    /// Neither side of `to` may be longer than that of `from`, nor be 0.
    AreaScaler(QSize from, QSize to);
    /// One row of `from`, three samples a pixel. The finished row of `to` is returned, if this one completed it; it
    /// is valid until the next call.
    [[nodiscard]] const uchar *addRow(const uchar *rgb);

private:
    struct Span {
        int first = 0; ///< samples of the source row where the area begins and where its last pixel is
        int last = 0;
        float firstWeight = 0;
        float lastWeight = 0;
    };
    void add(const uchar *rgb, float weight);
    void finishRow();

    QSize m_from;
    QSize m_to;
    std::vector<Span> m_spans;
    std::vector<float> m_sums; ///< of the target row in the making, still as wide as the source
    std::vector<uchar> m_row;
    // A source row is m_to.height() units high and a target row m_from.height(), so that all borders are whole.
    qint64 m_filled = 0;
};

} // namespace Varlo
