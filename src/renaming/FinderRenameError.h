// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "renaming/RenameFailure.h"
#include <variant>

namespace Varlo {

/// Finder could not rename the file.
struct FinderFailed {
    Message message; ///< Finder's own words, shown to the user as they stand

    bool operator==(const FinderFailed &) const = default;
};
/// Varlo may not control Finder, so another way to rename is worth trying.
struct AutomationDenied {
    bool operator==(const AutomationDenied &) const = default;
};
/// Why Finder left a file as it was. Of RenameError only InvalidName: a want of free names is the script's own message.
using FinderRenameError = std::variant<FinderFailed, AutomationDenied, RenameError>;

/// Finder gave no reason, or could not be asked at all.
[[nodiscard]] FinderFailed finderFailedWithoutMessage();

/// The words shown to the user.
[[nodiscard]] Message description(const FinderRenameError &error);

} // namespace Varlo
