// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "renaming/PlannedNames.h"
#include "renaming/RenameFolder.h"
#include "renaming/RenameRequest.h"
#include <map>
#include <string_view>
#include <variant>

namespace Varlo {

/// A file and its target name, if it can have one. Made from a path or a request, which must outlive it.
struct RenameJob {
    const std::filesystem::path *filePath = nullptr;
    std::string_view folder; ///< a part of `*filePath`
    std::string name;
    Result<TargetName, RenameError> target = tl::unexpected(RenameError::InvalidName);
    std::optional<FileIdentity> admitted;
    std::optional<double> undoneDate; ///< present when it takes a logged rename back: the date of that one

    [[nodiscard]] static RenameJob of(const RenameRequest &request);
    /// Without a target.
    [[nodiscard]] static RenameJob at(const std::filesystem::path &file);

    [[nodiscard]] bool isDoneAlready() const { return target && target->isCurrentName; }
};

/// Chooses the names of several files before the first of them is moved. Changes nothing on disk.
class RenamePlanner {
public:
    enum class Purpose {
        /// What a volume may see otherwise, such as a name that another planned move frees, is left for later.
        Moving,
        /// Every job gets its answer, as if the earlier ones had been carried out.
        Showing,
    };
    struct NothingToMove { };
    struct WaitForOthers { };
    using Plan = std::variant<PlannedMove, NothingToMove, RenameFailure, WaitForOthers>;

    explicit RenamePlanner(Purpose purpose)
        : m_purpose(purpose)
    {
    }

    /// Later plans count on the move, if it is one.
    [[nodiscard]] Plan plan(const RenameJob &job);
    /// The folder that a planned move is in.
    [[nodiscard]] const RenameFolder &folderOf(const RenameJob &job) const;

private:
    struct Folder {
        Result<RenameFolder, SystemError> opened;
        PlannedNames names;
    };

    [[nodiscard]] Folder &openedFolder(const RenameJob &job);
    [[nodiscard]] Plan planInFolder(const RenameJob &job, const Folder &folder) const;

    Purpose m_purpose;
    std::map<std::string, Folder, std::less<>> m_folders;
};

} // namespace Varlo
