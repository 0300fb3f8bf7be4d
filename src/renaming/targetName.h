// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Result.h"
#include "renaming/RenameFailure.h"
#include <QString>
#include <string>
#include <string_view>

namespace Varlo {

/// The longest name in bytes that Linux file systems take (NAME_MAX).
constexpr std::size_t longestName = 255;

/// The name that a file is to get in its folder, in the bytes of the disk. Pure.
struct TargetName {
    std::string base; ///< without number and extension; may be longer than fits
    std::string extension; ///< as the file has it now, with its "."; "" for none
    bool isCurrentName = false; ///< the file has this name already, perhaps with its accents composed otherwise

    /// The name itself for `number` 1, else with a space and the number behind its base. The base loses whole
    /// characters at its end until everything fits into `byteLimit`; "" when not one would be left.
    [[nodiscard]] std::string candidate(int number, std::size_t byteLimit = longestName) const;
};

/// The target for a name that somebody thought of, without extension.
/// Beyond what `sanitizeFilename` takes away: leading dots, which would hide the file, unless the old name had one;
/// control characters up to U+009F; invisible ones, which act on the direction of the text or let two names look alike
/// (joiners stay where they shape an emoji or a script). A lone surrogate, which has no UTF-8, becomes U+FFFD.
/// Errors: InvalidName.
[[nodiscard]] Result<TargetName, RenameError> targetName(std::string_view currentName, const QString &newName);

/// A name that somebody thought of, as it may stand in a field to be edited: without the characters that targetName()
/// takes away since they act on the text or hide in it, and no longer than a name can be. Joiners stay: whoever types
/// one has not yet typed what it joins.
[[nodiscard]] QString editableName(const QString &name);

/// The target for a base name that the file had before: it comes back as it was, byte for byte.
[[nodiscard]] TargetName formerName(std::string_view currentName, const std::string &formerBase);

} // namespace Varlo
