// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/announceRenames.h"
#include "cli/commands.h"
#include "cli/FileArgumentList.h"
#include "cli/Progress.h"
#include "cli/suggestNames.h"
#include "history/applyHistoryChanges.h"
#include "platform/visibleText.h"
#include "renaming/planRenames.h"
#include <algorithm>
#include <csignal>
#include <QCoreApplication>
#include <QCoroTask>

namespace Varlo {

using namespace Qt::StringLiterals;

static volatile std::sig_atomic_t isInterrupted = 0;

/// From here on an interrupt ends the action after the rename in hand.
static void stopOnInterrupt()
{
    std::signal(SIGINT, [](int) { isInterrupted = 1; });
}

/// What will happen to each file, numbers included; the outcome of a file that will get no name is why not.
static std::vector<FileRenamer::Outcome> planBatch(const std::vector<const FileItem *> &items)
{
    std::vector<RenameRequest> requests;
    for (const FileItem *item : items)
        requests.push_back({ item->path, item->suggestedName, item->identity });
    return planRenames(requests);
}

static void printPlan(const std::vector<const FileItem *> &items, Terminal &terminal)
{
    const std::vector<FileRenamer::Outcome> outcomes = planBatch(items);
    std::vector<TableRow> rows;
    for (std::size_t index = 0; index < items.size(); ++index) {
        const std::filesystem::path &path = items[index]->path;
        TableCell target;
        if (!outcomes[index])
            target = { visibleText(description(outcomes[index].error()).text()), Colour::Red };
        else if (*outcomes[index] == path)
            target = { QCoreApplication::translate("Terminal", "(stays as it is)"), Colour::Dim };
        else
            target = { visibleText(outcomes[index]->filename()), Colour::Green };
        rows.push_back({ { visibleText(path.filename()), Colour::Plain }, target,
            { pathFromHere(path.parent_path()), Colour::Dim } });
    }
    terminal.printTable(
        { QCoreApplication::translate("Terminal", "File"), QCoreApplication::translate("Terminal", "New name"),
            QCoreApplication::translate("Terminal", "Folder") },
        rows);
}

/// For the files that will not be renamed, so that nobody wonders where they are.
static void tellOfRest(const RenamerViewModel &batch, Terminal &terminal)
{
    for (const FileItem &item : batch.files()) {
        if (!item.suggestedName.isEmpty())
            continue;
        const auto *failed = std::get_if<FileItem::Failed>(&item.status);
        terminal.complain(
            pathFromHere(item.path) + u": "_s + (failed ? visibleMessage(failed->message) : label(item.status)));
    }
}

static QJsonObject renamedToJson(const FileItem &item, const std::filesystem::path &oldPath)
{
    FileItem before = item;
    before.path = oldPath;
    QJsonObject object = toJson(before);
    if (std::holds_alternative<FileItem::Renamed>(item.status))
        insertPath(object, u"newPath"_s, item.path);
    return object;
}

static bool isConfirmed(const RenameCommand &command, qsizetype count, Session &session)
{
    Terminal &terminal = session.terminal();
    const qsizetype kept = static_cast<qsizetype>(maximumLogEntries);
    if (count > kept) {
        terminal.complain(QCoreApplication::translate(
            "Terminal", "the history keeps the newest %1 renames, so the first %2 of these cannot be taken back later")
                              .arg(kept)
                              .arg(count - kept));
    }
    if (command.yes)
        return true;
    return terminal.confirm(QCoreApplication::translate("Terminal", "Rename as shown?"));
}

static void addFailure(RenameSummary &summary, const QString &reason)
{
    if (summary.failedCount++ == 0)
        summary.failure = visibleMessage(reason);
}

/// The newest entry of the history that led to the file as it is now; "" where the history could not take it in.
static QString entryIdOf(const std::filesystem::path &path, const RenameLog &log)
{
    const auto &entries = log.entries();
    const auto entry = std::find_if(
        entries.rbegin(), entries.rend(), [&path](const RenameLog::Entry &each) { return each.toPath == path; });
    return entry == entries.rend() ? QString() : entry->id();
}

static void addRename(RenameSummary &summary, const FileItem &item, const RenameLog &log)
{
    summary.newNames.append(visibleText(item.path.filename()));
    if (const QString id = entryIdOf(item.path, log); !id.isEmpty())
        summary.entryIds.push_back(id);
}

/// Carries the plan out; returns how many files were renamed.
static qsizetype renameFiles(
    RenamerViewModel &batch, qsizetype count, const RenameCommand &command, Session &session, RenameSummary &summary)
{
    Terminal &terminal = session.terminal();
    const RenameLog &log = session.renameLog();
    qsizetype renamedCount = 0;
    std::map<QUuid, std::filesystem::path> oldPaths;
    for (const FileItem &item : batch.files())
        oldPaths.emplace(item.id, item.path);
    Progress progress(terminal, count);
    const auto connection = QObject::connect(&batch, &RenamerViewModel::renameFinished, [&](int row) {
        const FileItem &item = batch.files()[static_cast<std::size_t>(row)];
        const auto *failed = std::get_if<FileItem::Failed>(&item.status);
        renamedCount += failed ? 0 : 1;
        if (failed)
            addFailure(summary, failed->message);
        else
            addRename(summary, item, log);
        if (command.json)
            terminal.printJson(renamedToJson(item, oldPaths.at(item.id)));
        if (failed)
            terminal.complain(pathFromHere(item.path) + u": "_s + visibleMessage(failed->message));
        progress.advance();
        if (isInterrupted)
            batch.stopRenaming();
    });
    stopOnInterrupt();
    QCoro::waitFor(batch.renameAll());
    QObject::disconnect(connection);
    return renamedCount;
}

static ExitCode suggestAndRename(const RenameCommand &command, Session &session, RenameSummary &summary)
{
    Terminal &terminal = session.terminal();
    session.folderPanel().setMayAsk(!command.yes);
    const auto whenSuggested = [&](const FileItem &item) {
        const auto *failed = std::get_if<FileItem::Failed>(&item.status);
        if (item.suggestedName.isEmpty())
            addFailure(summary, failed ? failed->message.text() : label(item.status));
        // A renamed file's line comes with its rename.
        if (command.json && (command.dryRun || item.suggestedName.isEmpty()))
            terminal.printJson(toJson(item));
    };
    const std::optional<NamedBatch> named = suggestNames(command.naming, command.arguments, session, whenSuggested);
    if (!named) {
        summary.failure = QCoreApplication::translate("Terminal", "The settings do not fit; see `varlo doctor`.");
        return ExitCode::WrongUsage;
    }
    RenamerViewModel &batch = *named->batch;
    if (batch.files().empty() && !named->hasRefusedArguments)
        summary.failure = QCoreApplication::translate("Terminal", "Nothing here Varlo can rename.");
    const bool someFailed = named->hasRefusedArguments || std::ranges::any_of(batch.files(), hasFailed);
    const ExitCode codeSoFar = someFailed ? ExitCode::SomeFailed : ExitCode::Success;

    std::vector<const FileItem *> items;
    for (const QUuid &id : batch.renamableFiles())
        items.push_back(&batch.files()[static_cast<std::size_t>(*batch.rowOf(id))]);
    const auto count = static_cast<qsizetype>(items.size());
    tellOfRest(batch, terminal);
    if (!command.json && !items.empty())
        printPlan(items, terminal);
    if (items.empty() || command.dryRun || !isConfirmed(command, count, session))
        return codeSoFar;

    const qsizetype renamedCount = renameFiles(batch, count, command, session, summary);
    session.tellNotices();
    if (renamedCount > 0) {
        terminal.inform(
            QCoreApplication::translate("Terminal", "Files renamed: %1. `varlo undo --last %1` takes that back.")
                .arg(renamedCount));
    }
    if (isInterrupted)
        return ExitCode::Interrupted;
    return renamedCount < count ? ExitCode::SomeFailed : codeSoFar;
}

ExitCode run(const RenameCommand &command, Session &session)
{
    Terminal &terminal = session.terminal();
    if (!command.yes && !command.dryRun && !terminal.canAsk()) {
        terminal.complain(QCoreApplication::translate(
            "Terminal", "there is no terminal to ask on; give --yes to rename without asking"));
        return ExitCode::WrongUsage;
    }
    RenameSummary summary;
    const ExitCode code = suggestAndRename(command, session, summary);
    if (!command.notify || command.dryRun)
        return code;
    exitOn(SIGINT); // nothing is half done any more
    announceRenames(summary, session);
    return code;
}

} // namespace Varlo
