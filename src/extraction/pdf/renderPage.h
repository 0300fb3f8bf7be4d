// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <poppler-image.h>
#include <poppler-page.h>

namespace Varlo {

struct RenderedPage {
    poppler::image image;
    int resolution = 0; ///< pixels an inch
};

/// A page as a viewer shows it, on white. One that would be larger than 6000 pixels along a side or 32 megapixels in
/// all comes at a lower resolution. Nothing for a page without an area.
[[nodiscard]] std::optional<RenderedPage> renderPage(
    const poppler::page &page, poppler::image::format_enum format, double resolution);

} // namespace Varlo
