// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/AutomationHost.h"
#include "renaming/FinderRenameError.h"
#include <filesystem>

namespace Varlo {

/// Has Finder rename the file at `path` (absolute) to the cleaned `newName`, in its own folder and with its extension.
/// Returns the path that the file has now: `path` itself when it had the name already, in whatever letter case. Blocks
/// while Finder works; main thread. On an error the file is as it was; a path that is not UTF-8 is one, as no script
/// can hold it.
[[nodiscard]] Result<std::filesystem::path, FinderRenameError> renameWithFinder(
    AutomationHost &host, const std::filesystem::path &path, const QString &newName);

} // namespace Varlo
