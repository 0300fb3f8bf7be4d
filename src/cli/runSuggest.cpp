// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/commands.h"
#include "cli/FileArgumentList.h"
#include "cli/suggestionCell.h"
#include "cli/suggestNames.h"
#include "platform/visibleText.h"
#include <algorithm>
#include <QCoreApplication>

namespace Varlo {

using namespace Qt::StringLiterals;

static void printTable(const FileItems &items, Terminal &terminal)
{
    const bool hasTags = std::ranges::any_of(items, [](const FileItem &item) { return !item.suggestedTags.isEmpty(); });
    QStringList headings { QCoreApplication::translate("Terminal", "File"),
        QCoreApplication::translate("Terminal", "Suggested name") };
    if (hasTags)
        headings.append(QCoreApplication::translate("Terminal", "Tags"));
    std::vector<TableRow> rows;
    for (const FileItem &item : items) {
        rows.push_back({ { pathFromHere(item.path), Colour::Plain }, suggestionCell(item) });
        if (hasTags)
            rows.back().push_back({ visibleText(item.suggestedTags.join(u", "_s)), Colour::Dim });
    }
    terminal.printTable(headings, rows);
}

ExitCode run(const SuggestCommand &command, Session &session)
{
    Terminal &terminal = session.terminal();
    const auto whenDone = [&](const FileItem &item) {
        if (command.json)
            terminal.printJson(toJson(item));
    };
    const std::optional<NamedBatch> named = suggestNames(command.naming, command.arguments, session, whenDone);
    if (!named)
        return ExitCode::WrongUsage;
    const FileItems &items = named->batch->files();
    if (!command.json && !items.empty())
        printTable(items, terminal);
    const bool someFailed = named->hasRefusedArguments || std::ranges::any_of(items, hasFailed);
    return someFailed ? ExitCode::SomeFailed : ExitCode::Success;
}

} // namespace Varlo
