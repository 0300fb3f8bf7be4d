// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "extraction/Extraction.h"
#include "extraction/PicturePreview.h"
#include <filesystem>
#include <QCoroTask>

namespace Varlo {

struct TextPreview {
    QString text; ///< at most 4000 characters; a plain text keeps its lines

    bool operator==(const TextPreview &) const = default;
};
/// What somebody sees of a file at a glance: a picture, the first page of a PDF, or the beginning of a text.
using Preview = std::variant<TextPreview, PicturePreview, Unreadable, NoTextFound, NotSupportedYet>;

/// Shows files at a glance.
struct PreviewReader {
    virtual ~PreviewReader() = default;
    /// Always ends: every failure is a case of the outcome. A picture is at most so many pixels long and wide, and in
    /// any case at most longestPreviewSide.
    [[nodiscard]] virtual QCoro::Task<Preview> preview(std::filesystem::path path, int longestSide) = 0;
};

} // namespace Varlo
