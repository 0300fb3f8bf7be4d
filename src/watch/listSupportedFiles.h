// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Result.h"
#include "platform/SystemError.h"
#include <filesystem>
#include <string>
#include <vector>

namespace Varlo {

/// An entry of a folder.
struct ListedFile {
    std::string name; ///< in the folder
    std::filesystem::path path; ///< where it leads to, when it is a symbolic link
};

/// The entries at the top level of a folder whose extension Varlo reads, in the order in which the system lists them.
/// Hidden ones are left out, and so are links to folders: whoever may put a link here must not thereby have all
/// that lies behind it read. A link that leads nowhere keeps its own path. Safe on any thread; waits for the disk.
[[nodiscard]] Result<std::vector<ListedFile>, SystemError> listSupportedFiles(const std::filesystem::path &folder);

} // namespace Varlo
