// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "extraction/PicturePreview.h"
#include "platform/FileDescriptor.h"
#include <optional>

namespace Varlo {

/// The first page of a PDF for a quick look, its longer side `longestSide` pixels (at most 6000), fewer where the page
/// is so small that it would be drawn at more than 300 pixels an inch. Nothing for a file that cannot be opened, needs
/// a password, or has no page.
[[nodiscard]] std::optional<PicturePreview> renderFirstPage(const FileDescriptor &file, int longestSide);

} // namespace Varlo
