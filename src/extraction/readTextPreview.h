// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "extraction/PreviewReader.h"
#include "platform/FileDescriptor.h"

namespace Varlo {

inline constexpr qsizetype mostPreviewCharacters = 4000;
inline constexpr qsizetype mostPreviewBytes = 4 * mostPreviewCharacters; ///< a letter may have any number of accents

/// The beginning of a file of UTF-8 text with its lines, or NoTextFound where it begins otherwise or has nothing to
/// show. Unlike readPlainText() it does not look at the rest.
[[nodiscard]] Preview readTextPreview(const FileDescriptor &file);

} // namespace Varlo
