// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "renaming/FileRenamer.h"

#include "platform/pathExtension.h"
#include "renaming/PlannedNames.h"
#include "renaming/RenameFolder.h"
#include "renaming/targetName.h"
#include <algorithm>
#include <cmath>
#include <limits>
#include <QRandomGenerator>
#include <QScopedValueRollback>

namespace Varlo {

using std::filesystem::path;

static constexpr int lastNumber = 99;

/// A request whose target name is known, if it has one.
struct FileRenamer::Job {
    const path *filePath = nullptr; ///< the caller's
    std::string folder;
    std::string name;
    Result<TargetName, RenameError> target = tl::unexpected(RenameError::InvalidName);
    std::optional<FileIdentity> admitted;
    std::optional<double> undoneDate;

    static Job of(const RenameRequest &request)
    {
        Job job = at(request.path);
        job.target = targetName(job.name, request.newName);
        job.admitted = request.admitted;
        return job;
    }
    static Job at(const path &file)
    {
        const std::string &text = file.native();
        const std::size_t slash = text.rfind('/');
        Job job;
        job.filePath = &file;
        job.folder = text.substr(0, std::max<std::size_t>(slash, 1));
        job.name = text.substr(slash + 1);
        return job;
    }
    [[nodiscard]] bool isDoneAlready() const { return target && target->isCurrentName; }
};

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
    [[nodiscard]] End run(std::span<const Job> jobs, const FileRenamer::Report &report);

private:
    struct NothingToMove { };
    struct WaitForOthers { };
    using Plan = std::variant<PlannedMove, NothingToMove, RenameFailure, WaitForOthers>;
    struct Step {
        const Job *job = nullptr;
        Plan plan;
        quint64 id = 0;
        double date = 0;
    };
    struct Folder {
        Result<RenameFolder, SystemError> opened;
        PlannedNames names;
        bool hasMoves = false;
    };

    [[nodiscard]] Folder &folderOf(const Job &job);
    [[nodiscard]] Plan plan(const Job &job);
    [[nodiscard]] Plan planInFolder(const Job &job, Folder &folder);
    void planAll(std::span<const Job> jobs);
    [[nodiscard]] Result<void, SystemError> noteDown();
    [[nodiscard]] Outcome carryOut(const Step &step);
    [[nodiscard]] Outcome move(const Step &step, const PlannedMove &planned);
    void finish();

    FileRenamer &m_renamer;
    std::vector<Step> m_steps;
    std::map<std::string, Folder> m_folders;
    std::vector<JournalRecord> m_outcomes;
};

FileRenamer::Group::Folder &FileRenamer::Group::folderOf(const Job &job)
{
    const auto known = m_folders.find(job.folder);
    if (known != m_folders.end())
        return known->second;
    return m_folders.emplace(job.folder, Folder { RenameFolder::open(job.folder), {}, false }).first->second;
}

FileRenamer::Group::Plan FileRenamer::Group::plan(const Job &job)
{
    if (!job.target)
        return RenameFailure(job.target.error());
    if (job.target->isCurrentName)
        return NothingToMove {};
    Folder &folder = folderOf(job);
    if (!folder.opened)
        return RenameFailure(folder.opened.error());
    if (folder.names.ask(job.name) != PlannedNames::Answer::Untouched)
        return WaitForOthers {};
    return planInFolder(job, folder);
}

FileRenamer::Group::Plan FileRenamer::Group::planInFolder(const Job &job, Folder &folder)
{
    const auto file = folder.opened->find(job.name);
    if (!file)
        return RenameFailure(file.error());
    if (!file->isRenamable() || (job.admitted && *job.admitted != file->identity))
        return RenameFailure(FileChanged {});
    for (int number = 1; number <= lastNumber; ++number) {
        const std::string candidate = job.target->candidate(number, folder.opened->longestName());
        if (candidate.empty())
            return RenameFailure(RenameError::InvalidName);
        if (candidate == job.name)
            return NothingToMove {};
        const PlannedNames::Answer planned = folder.names.ask(candidate);
        if (planned == PlannedNames::Answer::Unclear)
            return WaitForOthers {};
        if (planned == PlannedNames::Answer::Taken)
            continue;
        const auto holder = folder.opened->find(candidate);
        if (!holder && holder.error().code != ENOENT)
            return RenameFailure(holder.error());
        if (!holder)
            return PlannedMove { job.name, candidate, *file, false };
        if (holder->identity != file->identity)
            continue;
        // The file itself, on a volume that ignores case; or a second link to it, which is a name of its own.
        const auto isLink = folder.opened->isSecondLink(candidate);
        if (!isLink)
            return RenameFailure(isLink.error());
        if (!*isLink)
            return PlannedMove { job.name, candidate, *file, true };
    }
    return RenameFailure(RenameError::TooManyConflicts);
}

void FileRenamer::Group::planAll(std::span<const Job> jobs)
{
    for (const Job &job : jobs) {
        Plan planned = plan(job);
        if (std::holds_alternative<WaitForOthers>(planned))
            return;
        if (const auto *move = std::get_if<PlannedMove>(&planned))
            folderOf(job).names.add(move->from, move->to);
        m_steps.push_back({ &job, std::move(planned), 0, 0 });
    }
}

Result<void, SystemError> FileRenamer::Group::noteDown()
{
    std::vector<JournalRecord> intents;
    const double now = m_renamer.now();
    for (Step &step : m_steps) {
        step.date = m_renamer.nextDate(now);
        const auto *move = std::get_if<PlannedMove>(&step.plan);
        if (!move)
            continue;
        step.id = QRandomGenerator::global()->generate64();
        intents.push_back(RenameIntent { step.id, step.job->folder, move->from, move->to, move->file.identity.device,
            move->file.identity.inode, move->file.birthTimeNs, step.date, step.job->undoneDate, false });
    }
    if (intents.empty())
        return {};
    return m_renamer.m_journal.append(intents, RenameJournal::Durability::Synced);
}

FileRenamer::Outcome FileRenamer::Group::move(const Step &step, const PlannedMove &planned)
{
    Folder &folder = folderOf(*step.job);
    const auto beforeLinking = [&] {
        const JournalRecord mark = LinkingBegun { step.id };
        return m_renamer.m_journal.append({ &mark, 1 }, RenameJournal::Durability::Synced);
    };
    const auto moved = folder.opened->move(planned, beforeLinking);
    if (!moved)
        return tl::unexpected(moved.error());
    folder.hasMoves = true;
    return pathIn(step.job->folder, planned.to);
}

FileRenamer::Outcome FileRenamer::Group::carryOut(const Step &step)
{
    if (const auto *failure = std::get_if<RenameFailure>(&step.plan))
        return tl::unexpected(*failure);
    const auto *planned = std::get_if<PlannedMove>(&step.plan);
    if (!planned && step.job->undoneDate)
        m_outcomes.push_back(UndoReported { step.job->filePath->native(), *step.job->undoneDate, step.date });
    if (!planned)
        return *step.job->filePath;
    Outcome outcome = move(step, *planned);
    if (!outcome) {
        const auto taken = folderOf(*step.job).opened->find(planned->to);
        if (taken && taken->identity == planned->file.identity) // a second name that could not be taken back
            m_renamer.m_journal.settleNextTime();
        else
            m_outcomes.push_back(RenameDropped { step.id });
        return outcome;
    }
    m_outcomes.push_back(RenameDone { step.id });
    if (!step.job->undoneDate)
        m_renamer.m_unloggedDates.emplace(std::pair { step.job->filePath->native(), outcome->native() }, step.date);
    return outcome;
}

/// The outcomes need no sync of their own: without them the next session looks at the files and finds the same.
void FileRenamer::Group::finish()
{
    for (auto &[folderPath, folder] : m_folders) {
        if (folder.hasMoves)
            folder.opened->sync();
    }
    if (!m_outcomes.empty())
        static_cast<void>(m_renamer.m_journal.append(m_outcomes, RenameJournal::Durability::Unsynced));
}

FileRenamer::Group::End FileRenamer::Group::run(std::span<const Job> jobs, const FileRenamer::Report &report)
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
            m_outcomes.push_back(RenameDropped { m_steps[left].id });
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
        std::vector<Job> jobs;
        for (const RenameRequest &request : requests.subspan(tried, std::min(size, requests.size() - tried)))
            jobs.push_back(Job::of(request));
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
    Job job = Job::at(filePath);
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
