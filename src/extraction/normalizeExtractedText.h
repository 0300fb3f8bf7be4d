// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "extraction/Extraction.h"
#include <QString>

namespace Varlo {

// Lengths count user-perceived characters, except for the last limit: a "character" may be a letter with a million
// accents, so the text is cut at 256 KiB of UTF-8 as well, which no honest text of 8000 characters reaches.
inline constexpr qsizetype fewestTextCharacters = 20;
inline constexpr qsizetype mostTextCharacters = 8000;
inline constexpr qsizetype mostTextBytes = qsizetype { 256 } * 1024;

/// The last step of every reader of text: each run of white space (Unicode's White_Space) becomes one space, both ends
/// are trimmed, and as much of the front is kept as the limits allow, cut between characters. Pure.
/// Gives the text, or NoTextFound when fewer than 20 characters are left.
[[nodiscard]] Extraction normalizeExtractedText(const QString &text);

} // namespace Varlo
