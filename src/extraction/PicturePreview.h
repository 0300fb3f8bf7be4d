// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QSize>

namespace Varlo {

/// A small picture as its bare pixels, so that whoever shows it decodes nothing of a stranger's.
struct PicturePreview {
    QSize size; ///< in pixels; never empty
    QByteArray pixels; ///< red, green and blue, a byte each, row after row from the top, with nothing in between

    bool operator==(const PicturePreview &) const = default;
};

/// The longest side that may be asked for: a large sheet on a screen of two device pixels to one.
inline constexpr int longestPreviewSide = 2048;

} // namespace Varlo
