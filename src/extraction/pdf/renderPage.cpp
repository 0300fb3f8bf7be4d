// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "extraction/pdf/renderPage.h"

#include <algorithm>
#include <cmath>
#include <poppler-page-renderer.h>

namespace Varlo {

constexpr double mostPixelsAlongASide = 6000;
constexpr double mostPixels = 32e6;
constexpr double pointsPerInch = 72;

std::optional<RenderedPage> renderPage(const poppler::page &page, poppler::image::format_enum format, double resolution)
{
    const poppler::rectf box = page.page_rect(poppler::crop_box);
    const double width = box.width();
    const double height = box.height();
    if (!std::isfinite(width * height) || width <= 0 || height <= 0)
        return std::nullopt;
    const double scale = std::min({ resolution / pointsPerInch, mostPixelsAlongASide / std::max(width, height),
        std::sqrt(mostPixels / (width * height)) });
    if (std::min(width, height) * scale < 1)
        return std::nullopt;

    poppler::page_renderer renderer;
    renderer.set_image_format(format);
    renderer.set_render_hints(poppler::page_renderer::antialiasing | poppler::page_renderer::text_antialiasing);
    const double pixelsPerInch = scale * pointsPerInch;
    RenderedPage rendered { renderer.render_page(&page, pixelsPerInch, pixelsPerInch),
        static_cast<int>(std::lround(pixelsPerInch)) };
    if (!rendered.image.is_valid())
        return std::nullopt;
    return rendered;
}

} // namespace Varlo
