// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>

namespace Varlo {

// Code pages bear the numbers that Windows gives them.
inline constexpr int westernCodePage = 1252;
inline constexpr int pictogramCodePage = 42; ///< fonts like Symbol and Wingdings: each byte is a picture
inline constexpr char16_t pictogramCharacter = u'\u2022'; ///< stands for any picture: nearly all are bullets of lists

/// The code page of a font's character set, a number of Windows (\fcharset). Absent where the document's own is meant
/// or the number is unknown.
[[nodiscard]] std::optional<int> codePageOfCharset(int charset);
/// How ICU calls the code page; null where none is known.
[[nodiscard]] const char *converterName(int codePage);

} // namespace Varlo
