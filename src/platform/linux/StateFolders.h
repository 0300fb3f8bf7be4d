// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Result.h"
#include "platform/SystemError.h"
#include <filesystem>
#include <map>
#include <QString>
#include <string>

namespace Varlo {

/// The variables of an environment, as the bytes that they are.
using Environment = std::map<std::string, std::string>;
[[nodiscard]] Environment processEnvironment();
/// As text; empty where the variable is not there.
[[nodiscard]] QString value(const Environment &environment, const std::string &name);

/// Where Varlo keeps its own files, after the XDG base directory rules (freedesktop.org, 0.8). Absolute paths of
/// folders of Varlo's own, which need not exist yet.
struct StateFolders {
    std::filesystem::path config; ///< preferences
    std::filesystem::path data; ///< what cannot be made again: secrets where there is no keyring
    std::filesystem::path state; ///< journals
    std::filesystem::path cache; ///< what may be deleted at any time

    /// A variable that holds a relative path counts as unset, as those rules demand.
    [[nodiscard]] static StateFolders from(const Environment &environment);
};

/// Makes the folder, and those above it that are missing, for the user alone (0700). One that is there is left alone.
[[nodiscard]] Result<void, SystemError> createStateFolder(const std::filesystem::path &folder);

} // namespace Varlo
