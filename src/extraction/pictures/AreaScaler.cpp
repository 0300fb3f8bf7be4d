// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "extraction/pictures/AreaScaler.h"

#include <algorithm>
#include <utility>

namespace Varlo {

AreaScaler::AreaScaler(QSize from, QSize to)
    : m_from(from)
    , m_to(to)
    , m_spans(to.width())
    , m_sums(size_t(from.width()) * 3)
    , m_row(size_t(to.width()) * 3)
{
    // Columns, like rows, are counted in units of which a source pixel has to.width() and a target pixel from.width().
    const qint64 sourceUnits = to.width();
    const qint64 targetUnits = from.width();
    for (qint64 x = 0; x < to.width(); ++x) {
        const qint64 begin = x * targetUnits;
        const qint64 end = begin + targetUnits;
        const qint64 first = begin / sourceUnits;
        const qint64 last = (end - 1) / sourceUnits;
        const qint64 firstUnits = std::min((first + 1) * sourceUnits, end) - begin;
        const qint64 lastUnits = last == first ? 0 : end - last * sourceUnits;
        m_spans[x] = { int(first * 3), int(last * 3), float(firstUnits) / float(targetUnits),
            float(lastUnits) / float(targetUnits) };
    }
}

const uchar *AreaScaler::addRow(const uchar *rgb)
{
    if (m_from == m_to)
        return rgb;
    const qint64 sourceUnits = m_to.height();
    const qint64 targetUnits = m_from.height();
    const qint64 part = std::min(sourceUnits, targetUnits - m_filled);
    add(rgb, float(part) / float(targetUnits));
    m_filled += part;
    if (m_filled < targetUnits)
        return nullptr;
    finishRow();
    m_filled = 0;
    if (part < sourceUnits) {
        add(rgb, float(sourceUnits - part) / float(targetUnits));
        m_filled = sourceUnits - part;
    }
    return m_row.data();
}

void AreaScaler::add(const uchar *rgb, float weight)
{
    float *const sums = m_sums.data();
    const size_t count = m_sums.size();
    if (m_filled == 0) {
        for (size_t i = 0; i < count; ++i)
            sums[i] = weight * float(rgb[i]);
    } else {
        for (size_t i = 0; i < count; ++i)
            sums[i] += weight * float(rgb[i]);
    }
}

void AreaScaler::finishRow()
{
    const float innerWeight = float(m_to.width()) / float(m_from.width());
    uchar *target = m_row.data();
    for (const Span &span : m_spans) {
        float red = 0;
        float green = 0;
        float blue = 0;
        for (int i = span.first + 3; i < span.last; i += 3) {
            red += m_sums[i];
            green += m_sums[i + 1];
            blue += m_sums[i + 2];
        }
        const auto mean = [&](float inner, int sample) {
            return uchar(inner * innerWeight + m_sums[span.first + sample] * span.firstWeight
                + m_sums[span.last + sample] * span.lastWeight + 0.5F);
        };
        *target++ = mean(red, 0);
        *target++ = mean(green, 1);
        *target++ = mean(blue, 2);
    }
}

} // namespace Varlo
