// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "renaming/FileRenamer.h"

#include "renaming/RenamePlanner.h"
#include <algorithm>
#include <cmath>
#include <limits>
#include <QRandomGenerator>
#include <QScopedValueRollback>
#include <set>

namespace Varlo {

using std::filesystem::path;

/// Jobs that share the writes to the disk: planned together, noted down together, then moved one by one.
class FileRenamer::Group {
public:
    struct End {
        std::size_t tried = 0;
        bool hasFailedMove = false; ///< what was planned behind it counted on it, and is to be planned anew
        bool isStopped = false;
    };

    explicit Group(FileRenamer &renamer)
        : m_renamer(renamer)
    {
    }
    [[nodiscard]] End run(std::span<const RenameJob> jobs, const FileRenamer::Report &report);

private:
    struct Step {
        const RenameJob *job = nullptr;
        RenamePlanner::Plan plan;
        quint64 id = 0;
        double date = 0;
    };

    void planAll(std::span<const RenameJob> jobs);
    [[nodiscard]] Result<void, SystemError> noteDown();
    [[nodiscard]] Outcome carryOut(const Step &step);
    [[nodiscard]] Outcome move(const Step &step, const PlannedMove &planned);
    void finish();

    FileRenamer &m_renamer;
    RenamePlanner m_planner { RenamePlanner::Purpose::Moving };
    std::vector<Step> m_steps;
    std::set<const RenameFolder *> m_foldersWithMoves;
    std::vector<JournalRecord> m_outcomes;
};

void FileRenamer::Group::planAll(std::span<const RenameJob> jobs)
{
    m_steps.reserve(jobs.size());
    for (const RenameJob &job : jobs) {
        RenamePlanner::Plan planned = m_planner.plan(job);
        if (std::holds_alternative<RenamePlanner::WaitForOthers>(planned))
            return;
        m_steps.push_back({ &job, std::move(planned), 0, 0 });
    }
}

Result<void, SystemError> FileRenamer::Group::noteDown()
{
    std::vector<JournalRecord> intents;
    intents.reserve(m_steps.size());
    const double now = m_renamer.now();
    for (Step &step : m_steps) {
        step.date = m_renamer.nextDate(now);
        const auto *move = std::get_if<PlannedMove>(&step.plan);
        if (!move)
            continue;
        step.id = QRandomGenerator::global()->generate64();
        intents.push_back(
            RenameIntent { step.id, std::string(step.job->folder), move->from, move->to, move->file.identity.device,
                move->file.identity.inode, move->file.birthTimeNs, step.date, step.job->undoneDate, false });
    }
    if (intents.empty())
        return {};
    return m_renamer.m_journal.append(std::move(intents), RenameJournal::Durability::Synced);
}

FileRenamer::Outcome FileRenamer::Group::move(const Step &step, const PlannedMove &planned)
{
    const RenameFolder &folder = m_planner.folderOf(*step.job);
    const auto beforeLinking
        = [&] { return m_renamer.m_journal.append({ LinkingBegun { step.id } }, RenameJournal::Durability::Synced); };
    const auto moved = folder.move(planned, beforeLinking);
    if (!moved)
        return tl::unexpected(moved.error());
    m_foldersWithMoves.insert(&folder);
    return pathIn(step.job->folder, planned.to);
}

FileRenamer::Outcome FileRenamer::Group::carryOut(const Step &step)
{
    if (const auto *failure = std::get_if<RenameFailure>(&step.plan))
        return tl::unexpected(*failure);
    const auto *planned = std::get_if<PlannedMove>(&step.plan);
    if (!planned && step.job->undoneDate)
        m_outcomes.emplace_back(UndoReported { step.job->filePath->native(), *step.job->undoneDate, step.date });
    if (!planned)
        return *step.job->filePath;
    Outcome outcome = move(step, *planned);
    if (!outcome) {
        const auto taken = m_planner.folderOf(*step.job).find(planned->to);
        if (taken && taken->identity == planned->file.identity) // a second name that could not be taken back
            m_renamer.m_journal.settleNextTime();
        else
            m_outcomes.emplace_back(RenameDropped { step.id });
        return outcome;
    }
    m_outcomes.emplace_back(RenameDone { step.id });
    if (!step.job->undoneDate)
        m_renamer.m_unloggedDates.emplace(std::pair { step.job->filePath->native(), outcome->native() }, step.date);
    return outcome;
}

/// The outcomes need no sync of their own: without them the next session looks at the files and finds the same.
void FileRenamer::Group::finish()
{
    for (const RenameFolder *folder : m_foldersWithMoves)
        folder->sync();
    if (!m_outcomes.empty())
        static_cast<void>(m_renamer.m_journal.append(std::move(m_outcomes), RenameJournal::Durability::Unsynced));
}

FileRenamer::Group::End FileRenamer::Group::run(std::span<const RenameJob> jobs, const FileRenamer::Report &report)
{
    const auto session = m_renamer.m_journal.enter();
    if (!session)
        return { 1, false,
            report(0, tl::unexpected(RenameFailure(HistoryNotWritable { session.error() }))) == Next::Stop };
    planAll(jobs);
    if (const auto noted = noteDown(); !noted) {
        for (Step &step : m_steps) {
            if (std::holds_alternative<PlannedMove>(step.plan))
                step.plan = RenameFailure(HistoryNotWritable { noted.error() });
        }
    }
    End end;
    while (end.tried < m_steps.size() && !end.isStopped && !end.hasFailedMove) {
        const Step &step = m_steps[end.tried];
        const Outcome outcome = carryOut(step);
        end.hasFailedMove = !outcome && std::holds_alternative<PlannedMove>(step.plan);
        end.isStopped = report(end.tried, outcome) == Next::Stop;
        ++end.tried;
    }
    for (std::size_t left = end.tried; left < m_steps.size(); ++left) {
        if (std::holds_alternative<PlannedMove>(m_steps[left].plan))
            m_outcomes.emplace_back(RenameDropped { m_steps[left].id });
    }
    finish();
    return end;
}

FileRenamer::FileRenamer(RenameJournal &journal, const Clock &clock)
    : m_journal(journal)
    , m_clock(clock)
{
}

FileRenamer::Outcome FileRenamer::renameDirectly(const RenameRequest &request)
{
    Outcome answer = tl::unexpected(RenameFailure(RenameError::InvalidName));
    renameAll({ &request, 1 }, [&](std::size_t, const Outcome &outcome) {
        answer = outcome;
        return Next::GoOn;
    });
    return answer;
}

std::size_t FileRenamer::renameAll(std::span<const RenameRequest> requests, const Report &report)
{
    const QScopedValueRollback isRenaming(m_isRenaming, true);
    std::size_t tried = 0;
    std::size_t size = groupSize;
    while (tried < requests.size()) {
        std::vector<RenameJob> jobs;
        jobs.reserve(size);
        for (const RenameRequest &request : requests.subspan(tried, std::min(size, requests.size() - tried)))
            jobs.push_back(RenameJob::of(request));
        const Report numbered
            = [&](std::size_t index, const Outcome &outcome) { return report(tried + index, outcome); };
        Group::End end;
        if (jobs.size() == 1 && jobs.front().isDoneAlready())
            end = { 1, false, numbered(0, *jobs.front().filePath) == Next::Stop };
        else
            end = Group(*this).run(jobs, numbered);
        tried += end.tried;
        if (end.isStopped)
            break;
        // Where one move is refused the next ones may be too, and each would have been noted down for nothing.
        size = end.hasFailedMove ? 1 : std::min(size * 2, groupSize);
    }
    return tried;
}

Result<FileRenamer::TakenBack, RenameFailure> FileRenamer::takeBack(
    const path &filePath, const std::string &formerBase, double date)
{
    const QScopedValueRollback isRenaming(m_isRenaming, true);
    RenameJob job = RenameJob::at(filePath);
    job.target = formerName(job.name, formerBase);
    job.undoneDate = date;
    Outcome answer = tl::unexpected(RenameFailure(RenameError::InvalidName));
    static_cast<void>(Group(*this).run({ &job, 1 }, [&](std::size_t, const Outcome &outcome) {
        answer = outcome;
        return Next::GoOn;
    }));
    // The group's only date is the latest one given out.
    return answer.map([this](const path &restored) { return TakenBack { restored, m_latestDate }; });
}

std::optional<double> FileRenamer::takeDate(const path &from, const path &to)
{
    const auto found = m_unloggedDates.find({ from.native(), to.native() });
    if (found == m_unloggedDates.end())
        return std::nullopt;
    const double date = found->second;
    m_unloggedDates.erase(found);
    return date;
}

double FileRenamer::now() const
{
    constexpr double secondsFrom1970To2001 = 978307200;
    return static_cast<double>(m_clock.now().toMSecsSinceEpoch()) / 1000 - secondsFrom1970To2001;
}

double FileRenamer::nextDate(double now)
{
    constexpr double microsecond = 1e-6;
    m_latestDate = std::max(now, m_latestDate + microsecond);
    return m_latestDate;
}

} // namespace Varlo
