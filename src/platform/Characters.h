// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringView>

namespace Varlo {

// Lengths here count user-perceived characters: extended grapheme clusters as Unicode's UAX #29 defines them, so that a
// family emoji, a flag, a Hangul syllable or a letter with its accents is one. Safe on any thread.

/// How many characters the text has, counted no further than `limit`.
[[nodiscard]] qsizetype countCharacters(QStringView text, qsizetype limit);
/// The first `count` characters, or the whole text when it has no more.
[[nodiscard]] QStringView firstCharacters(QStringView text, qsizetype count);
/// As many whole characters from the front as fit into `count` characters and `byteLimit` bytes of UTF-8.
[[nodiscard]] QStringView firstCharacters(QStringView text, qsizetype count, qsizetype byteLimit);
/// The columns that the text takes in a terminal: two for wide East Asian characters and emoji, none for combining
/// marks.
[[nodiscard]] int terminalWidth(QStringView text);

} // namespace Varlo
