// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/commands.h"
#include "cli/FileArgumentList.h"
#include "platform/shownPath.h"
#include "platform/visibleText.h"
#include <algorithm>
#include <QCoreApplication>
#include <QCoroTask>
#include <QJsonObject>

namespace Varlo {

using namespace Qt::StringLiterals;

/// ISO 8601 with the zone's offset.
static QString isoDate(double secondsSince2001)
{
    const QDateTime local = timeFromSecondsSince2001(secondsSince2001).toLocalTime();
    return local.toOffsetFromUtc(local.offsetFromUtc()).toString(Qt::ISODateWithMs);
}

static QJsonObject toJson(const RenameLog::Entry &entry)
{
    QJsonObject object { { u"id"_s, entry.id() }, { u"date"_s, isoDate(entry.date) } };
    insertPath(object, u"fromPath"_s, entry.fromPath);
    insertPath(object, u"toPath"_s, entry.toPath);
    if (entry.undoneAt)
        object.insert(u"undoneAt"_s, isoDate(*entry.undoneAt));
    return object;
}

static bool matches(const RenameLog::Entry &entry, const QString &search)
{
    return search.isEmpty() || shownPath(entry.fromPath).contains(search, Qt::CaseInsensitive)
        || shownPath(entry.toPath).contains(search, Qt::CaseInsensitive);
}

/// False, after a complaint, when renames may be missing from it.
static bool isReadable(const RenameLog &log, Terminal &terminal)
{
    const std::optional<SystemError> error = log.readError();
    if (error) {
        terminal.complain(
            QCoreApplication::translate("Terminal", "the history could not be read: %1").arg(error->description()));
    }
    return !error;
}

ExitCode run(const HistoryCommand &command, Session &session)
{
    Terminal &terminal = session.terminal();
    std::vector<TableRow> rows;
    const RenameLogEntries &entries = session.renameLog().entries();
    for (auto newest = entries.rbegin(); newest != entries.rend(); ++newest) {
        const RenameLog::Entry &entry = *newest;
        if (!matches(entry, command.search))
            continue;
        if (command.json) {
            terminal.printJson(toJson(entry));
            continue;
        }
        const QString state = entry.undoneAt ? QCoreApplication::translate("Terminal", "taken back") : QString();
        rows.push_back(
            { { timeFromSecondsSince2001(entry.date).toLocalTime().toString(u"yyyy-MM-dd HH:mm"_s), Colour::Dim },
                { visibleText(entry.fromPath.filename()), Colour::Plain },
                { visibleText(entry.toPath.filename()), Colour::Green },
                { pathFromHere(entry.toPath.parent_path()), Colour::Dim }, { state, Colour::Yellow } });
    }
    session.tellNotices();
    if (!rows.empty()) {
        terminal.printTable(
            { QCoreApplication::translate("Terminal", "Date"), QCoreApplication::translate("Terminal", "Old name"),
                QCoreApplication::translate("Terminal", "New name"), QCoreApplication::translate("Terminal", "Folder"),
                u""_s },
            rows);
    }
    return isReadable(session.renameLog(), terminal) ? ExitCode::Success : ExitCode::SomeFailed;
}

ExitCode run(const HistoryClearCommand &command, Session &session)
{
    Terminal &terminal = session.terminal();
    if (!command.yes && !terminal.canAsk()) {
        terminal.complain(QCoreApplication::translate(
            "Terminal", "there is no terminal to ask on; give --yes to clear without asking"));
        return ExitCode::WrongUsage;
    }
    const QString question = QCoreApplication::translate(
        "Terminal", "Clear the history? No file changes, but no rename in it can be taken back any more.");
    if (!command.yes && !terminal.confirm(question))
        return ExitCode::Success;
    const Result<void, SystemError> cleared = session.renameLog().clear();
    if (cleared)
        return ExitCode::Success;
    terminal.complain(QCoreApplication::translate("Terminal", "the history could not be cleared: %1")
                          .arg(cleared.error().description()));
    return ExitCode::SomeFailed;
}

/// The ids to take back, newest first.
static std::vector<QString> chosenIds(const UndoCommand &command, const RenameLog &log)
{
    if (!command.ids.isEmpty())
        return { command.ids.begin(), command.ids.end() };
    std::vector<QString> ids;
    const RenameLogEntries &entries = log.entries();
    for (auto entry = entries.rbegin(); entry != entries.rend(); ++entry) {
        if (static_cast<qsizetype>(ids.size()) == command.last)
            break;
        if (entry->isStanding())
            ids.push_back(entry->id());
    }
    return ids;
}

static bool isKnown(const RenameLog &log, const QString &id)
{
    return std::ranges::any_of(log.entries(), [&id](const RenameLog::Entry &entry) { return entry.id() == id; });
}

/// False when it could not be taken back.
static bool undo(const QString &id, const UndoCommand &command, Session &session)
{
    Terminal &terminal = session.terminal();
    QJsonObject object { { u"id"_s, id } };
    RenameLog::RevertOutcome outcome
        = tl::unexpected(Message("Terminal", QT_TRANSLATE_NOOP("Terminal", "the history has no such rename")));
    if (isKnown(session.renameLog(), id))
        outcome = QCoro::waitFor(session.renameLog().revert(id));
    if (!outcome) {
        object.insert(u"message"_s, outcome.error().text());
        terminal.complain(visibleText(id) + u": "_s + visibleMessage(outcome.error()));
    } else if (*outcome) {
        insertPath(object, u"restoredPath"_s, **outcome);
        if (!command.json)
            terminal.print(pathFromHere(**outcome));
    }
    if (command.json)
        terminal.printJson(object);
    return outcome.has_value();
}

ExitCode run(const UndoCommand &command, Session &session)
{
    if (!isReadable(session.renameLog(), session.terminal()))
        return ExitCode::SomeFailed;
    session.folderPanel().setMayAsk(session.terminal().canAsk());
    const std::vector<QString> ids = chosenIds(command, session.renameLog());
    if (ids.empty())
        session.terminal().complain(QCoreApplication::translate("Terminal", "there is no rename to take back"));
    bool someFailed = false;
    {
        const RenameLog::Action action = session.renameLog().beginAction();
        for (const QString &id : ids)
            someFailed = !undo(id, command, session) || someFailed;
    }
    session.tellNotices();
    return someFailed ? ExitCode::SomeFailed : ExitCode::Success;
}

} // namespace Varlo
