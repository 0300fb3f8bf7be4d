// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/commands.h"
#include "platform/visibleText.h"
#include <QCoreApplication>

namespace Varlo {

using namespace Qt::StringLiterals;

static ExitCode saved(const Result<void, SystemError> &result, Terminal &terminal)
{
    if (result)
        return ExitCode::Success;
    terminal.complain(QCoreApplication::translate("Terminal", "the templates could not be stored: %1")
                          .arg(result.error().description()));
    return ExitCode::SomeFailed;
}

ExitCode run(const TemplatesListCommand &command, Session &session)
{
    Terminal &terminal = session.terminal();
    const QList<NameTemplate> templates = session.templateStore().templates();
    if (command.json) {
        for (const NameTemplate &nameTemplate : templates)
            terminal.printJson(toJson(nameTemplate));
        return ExitCode::Success;
    }
    std::vector<TableRow> rows;
    for (const NameTemplate &nameTemplate : templates) {
        QStringList fields;
        for (const TemplateField field : nameTemplate.fields)
            fields.append(rawValue(field));
        rows.push_back({ { visibleText(nameTemplate.id), Colour::Plain },
            { visibleText(templateTitle(nameTemplate)), Colour::Plain }, { fields.join(u' '), Colour::Plain },
            { nameTemplate.exampleName(systemFilenameLanguage(session.locale())), Colour::Dim } });
    }
    terminal.printTable(
        { QCoreApplication::translate("Terminal", "Id"), QCoreApplication::translate("Terminal", "Name"),
            QCoreApplication::translate("Terminal", "Fields"), QCoreApplication::translate("Terminal", "Example") },
        rows);
    return ExitCode::Success;
}

ExitCode run(const TemplatesAddCommand &command, Session &session)
{
    TemplateStore &store = session.templateStore();
    const Result<QString, SystemError> id = store.addTemplate(command.fields);
    if (!id)
        return saved(tl::unexpected(id.error()), session.terminal());
    if (!command.name.isEmpty()) {
        const auto named = store.updateTemplate({ *id, command.name, command.fields });
        if (!named)
            return saved(named, session.terminal());
    }
    session.terminal().print(*id);
    return ExitCode::Success;
}

ExitCode run(const TemplatesEditCommand &command, Session &session)
{
    std::optional<NameTemplate> nameTemplate = session.nameTemplate(command.id);
    if (!nameTemplate)
        return ExitCode::WrongUsage;
    if (command.name)
        nameTemplate->name = command.name;
    if (!command.fields.isEmpty())
        nameTemplate->fields = command.fields;
    return saved(session.templateStore().updateTemplate(*nameTemplate), session.terminal());
}

ExitCode run(const TemplatesRemoveCommand &command, Session &session)
{
    if (!session.nameTemplate(command.id))
        return ExitCode::WrongUsage;
    if (builtInTemplateName(command.id)) {
        session.terminal().complain(
            QCoreApplication::translate("Terminal", "the built-in templates cannot be removed"));
        return ExitCode::WrongUsage;
    }
    return saved(session.templateStore().deleteTemplate(command.id), session.terminal());
}

} // namespace Varlo
