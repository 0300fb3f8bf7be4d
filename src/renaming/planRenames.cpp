// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "renaming/planRenames.h"

#include "renaming/JournalRecord.h"
#include "renaming/RenamePlanner.h"

namespace Varlo {

static FileRenamer::Outcome plan(const RenameRequest &request, RenamePlanner &planner)
{
    const RenameJob job = RenameJob::of(request);
    const RenamePlanner::Plan planned = planner.plan(job);
    if (const auto *failure = std::get_if<RenameFailure>(&planned))
        return tl::unexpected(*failure);
    if (const auto *move = std::get_if<PlannedMove>(&planned))
        return pathIn(job.folder, move->to);
    return request.path;
}

std::vector<FileRenamer::Outcome> planRenames(std::span<const RenameRequest> requests)
{
    RenamePlanner planner(RenamePlanner::Purpose::Showing);
    std::vector<FileRenamer::Outcome> outcomes;
    outcomes.reserve(requests.size());
    for (const RenameRequest &request : requests)
        outcomes.push_back(plan(request, planner));
    return outcomes;
}

} // namespace Varlo
