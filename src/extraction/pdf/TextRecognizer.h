// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <QString>
#include <span>

namespace Varlo {

/// A page in grey, 8 bits a pixel, 0 black. Belongs to whoever made it.
struct PagePicture {
    std::span<const std::byte> pixels; ///< the rows from the top
    int width = 0;
    int height = 0;
    int bytesPerRow = 0;
    int resolution = 0; ///< pixels an inch
};

/// Reads the text off a picture.
struct TextRecognizer {
    virtual ~TextRecognizer() = default;
    /// The lines in reading order, joined by single spaces; empty where nothing can be made out or anything fails.
    [[nodiscard]] virtual QString recognize(const PagePicture &page) = 0;
};

} // namespace Varlo
