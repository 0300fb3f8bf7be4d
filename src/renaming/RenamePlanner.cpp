// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "renaming/RenamePlanner.h"

#include "renaming/isSharedAlone.h"
#include <algorithm>
#include <cerrno>

namespace Varlo {

using std::filesystem::path;
using Answer = PlannedNames::Answer;

static constexpr int lastNumber = 99;

RenameJob RenameJob::of(const RenameRequest &request)
{
    RenameJob job = at(request.path);
    job.target = targetName(job.name, request.newName);
    job.admitted = request.admitted;
    return job;
}

RenameJob RenameJob::at(const path &file)
{
    const std::string_view text = file.native();
    const std::size_t slash = text.rfind('/');
    RenameJob job;
    job.filePath = &file;
    job.folder = text.substr(0, std::max<std::size_t>(slash, 1));
    job.name = text.substr(slash + 1);
    return job;
}

RenamePlanner::Folder &RenamePlanner::openedFolder(const RenameJob &job)
{
    const auto known = m_folders.find(job.folder);
    if (known != m_folders.end())
        return known->second;
    return m_folders.emplace(std::string(job.folder), Folder { RenameFolder::open(job.folder), {} }).first->second;
}

const RenameFolder &RenamePlanner::folderOf(const RenameJob &job) const
{
    return *m_folders.find(job.folder)->second.opened;
}

RenamePlanner::Plan RenamePlanner::plan(const RenameJob &job)
{
    if (!job.target)
        return RenameFailure(job.target.error());
    if (job.target->isCurrentName)
        return NothingToMove {};
    if (isSharedAlone(*job.filePath))
        return RenameFailure(SharedAlone {});
    Folder &folder = openedFolder(job);
    if (!folder.opened)
        return RenameFailure(folder.opened.error());
    if (m_purpose == Purpose::Moving && folder.names.ask(job.name) != Answer::Untouched)
        return WaitForOthers {};
    Plan planned = planInFolder(job, folder);
    if (const auto *move = std::get_if<PlannedMove>(&planned))
        folder.names.add(move->from, move->to);
    return planned;
}

RenamePlanner::Plan RenamePlanner::planInFolder(const RenameJob &job, const Folder &folder) const
{
    const auto file = folder.opened->find(job.name);
    if (!file)
        return RenameFailure(file.error());
    if (!file->isRenamable() || (job.admitted && *job.admitted != file->identity))
        return RenameFailure(FileChanged {});
    for (int number = 1; number <= lastNumber; ++number) {
        std::string candidate = job.target->candidate(number, folder.opened->longestName());
        if (candidate.empty())
            return RenameFailure(RenameError::InvalidName);
        if (candidate == job.name)
            return NothingToMove {};
        const Answer planned = folder.names.ask(candidate);
        if (planned == Answer::Taken)
            continue;
        if (planned != Answer::Untouched && m_purpose == Purpose::Moving)
            return WaitForOthers {};
        if (planned == Answer::Freed)
            return PlannedMove { job.name, std::move(candidate), *file, false };
        const auto holder = folder.opened->find(candidate);
        if (!holder && holder.error().code != ENOENT)
            return RenameFailure(holder.error());
        if (!holder)
            return PlannedMove { job.name, std::move(candidate), *file, false };
        if (holder->identity != file->identity)
            continue;
        // The file itself, on a volume that ignores case; or a second link to it, which is a name of its own.
        const auto isLink = folder.opened->isSecondLink(candidate);
        if (!isLink)
            return RenameFailure(isLink.error());
        if (!*isLink)
            return PlannedMove { job.name, std::move(candidate), *file, true };
    }
    return RenameFailure(RenameError::TooManyConflicts);
}

} // namespace Varlo
