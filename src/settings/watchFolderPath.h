// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "settings/Preferences.h"
#include <filesystem>

namespace Varlo {

/// The folder to be watched; empty for none. The text of the preference is the path, unless the bytes stored beside it
/// are what it shows: text alone cannot name a folder whose name is not UTF-8.
[[nodiscard]] std::filesystem::path watchFolderPath(const Preferences &preferences);
/// Stores the folder, which is absolute, or an empty path for none. Errors are those of Preferences::set().
[[nodiscard]] Result<void, SystemError> setWatchFolderPath(
    Preferences &preferences, const std::filesystem::path &folder);

} // namespace Varlo
