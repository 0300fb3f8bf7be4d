// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/SystemLocale.h"
#include <array>
#include <optional>
#include <QString>
#include <variant>

namespace Varlo {

/// The language that a name is asked for in.
enum class FilenameLanguage {
    Auto, ///< the document's own: Dutch, Spanish or English; English for a picture without text
    Dutch,
    Spanish,
    English,
};
inline constexpr std::array allFilenameLanguages { FilenameLanguage::Auto, FilenameLanguage::Dutch,
    FilenameLanguage::Spanish, FilenameLanguage::English };

/// "auto", "nl", "es" or "en".
[[nodiscard]] QString rawValue(FilenameLanguage language);
/// Takes exactly the four raw values, in lower case.
[[nodiscard]] std::optional<FilenameLanguage> filenameLanguage(const QString &rawValue);

/// What the user picks: a language, or whatever the system is set to at the moment of asking.
struct FollowSystem {
    bool operator==(const FollowSystem &) const = default;
};
using FilenameLanguageOption = std::variant<FilenameLanguage, FollowSystem>;

/// The choices, in the order in which they are offered.
inline const std::array<FilenameLanguageOption, 5> filenameLanguageOptions { FilenameLanguage::Auto, FollowSystem {},
    FilenameLanguage::English, FilenameLanguage::Spanish, FilenameLanguage::Dutch };

/// The raw value of a fixed language, or "system".
[[nodiscard]] QString id(const FilenameLanguageOption &option);
/// The choice with that id, if there is one.
[[nodiscard]] std::optional<FilenameLanguageOption> filenameLanguageOption(const QString &id);
/// The words the choice is offered under. A language is named in itself; only "Auto" and "System" are translated.
[[nodiscard]] QString label(const FilenameLanguageOption &option);

/// Dutch or Spanish where the system speaks it, English everywhere else; never Auto.
[[nodiscard]] FilenameLanguage systemFilenameLanguage(const SystemLocale &locale);
[[nodiscard]] FilenameLanguage resolvedLanguage(const FilenameLanguageOption &option, const SystemLocale &locale);

} // namespace Varlo
