// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "renaming/planRenames.h"

#include "renaming/targetName.h"
#include <cerrno>
#include <sys/stat.h>
#include <unordered_set>

namespace Varlo {

namespace {

/// The disk as the moves planned so far would leave it.
class PlannedDisk {
public:
    [[nodiscard]] bool isTaken(const std::filesystem::path &path) const
    {
        if (m_taken.contains(path.native()))
            return true;
        if (m_freed.contains(path.native()))
            return false;
        struct stat status { };
        return ::lstat(path.c_str(), &status) == 0 || errno != ENOENT;
    }
    void move(const std::filesystem::path &from, const std::filesystem::path &to)
    {
        m_taken.erase(from.native());
        m_freed.insert(from.native());
        m_freed.erase(to.native());
        m_taken.insert(to.native());
    }

private:
    std::unordered_set<std::string> m_taken;
    std::unordered_set<std::string> m_freed;
};

} // namespace

static FileRenamer::Outcome plan(const RenameRequest &request, PlannedDisk &disk)
{
    const Result<TargetName, RenameError> target = targetName(request.path.filename().native(), request.newName);
    if (!target)
        return tl::unexpected(RenameFailure { target.error() });
    if (target->isCurrentName)
        return request.path;
    constexpr int lastNumber = 99;
    for (int number = 1; number <= lastNumber; ++number) {
        const std::filesystem::path candidate = request.path.parent_path() / target->candidate(number);
        if (disk.isTaken(candidate))
            continue;
        disk.move(request.path, candidate);
        return candidate;
    }
    return tl::unexpected(RenameFailure { RenameError::TooManyConflicts });
}

std::vector<FileRenamer::Outcome> planRenames(std::span<const RenameRequest> requests)
{
    PlannedDisk disk;
    std::vector<FileRenamer::Outcome> outcomes;
    for (const RenameRequest &request : requests)
        outcomes.push_back(plan(request, disk));
    return outcomes;
}

} // namespace Varlo
