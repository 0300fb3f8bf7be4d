// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string_view>
#include <variant>

namespace Varlo {

/// What a group's text is for.
enum class Destination {
    Text,
    FontTable,
    Container, ///< not shown itself, but may hold groups that are
    Skipped, ///< with all that it holds
};

// The meanings of control words:

/// Stands for one character.
struct MeansCharacter {
    char16_t character;
};
/// Its group is for something.
struct MeansDestination {
    Destination destination;
    bool isApart = false; ///< a text of its own, not the middle of the sentence where it stands
};
/// The document's own code page, where the word names one; else the parameter does.
struct MeansDocumentCodePage {
    std::optional<int> codePage;
};
/// Those that stand for themselves; the parameter says which or how many.
enum class Setting {
    Font,
    DefaultFont,
    FontCharset,
    FontCodePage,
    UnicodeCharacter,
    UnicodeFallbackLength,
    Hidden,
    Deleted,
    PlainCharacters,
    BinaryData,
};
using ControlWordMeaning = std::variant<MeansCharacter, MeansDestination, MeansDocumentCodePage, Setting>;

/// Absent for those that only say how the text looks, and for unknown ones.
[[nodiscard]] std::optional<ControlWordMeaning> meaningOf(std::string_view controlWord);

} // namespace Varlo
