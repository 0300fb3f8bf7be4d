// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/suggestNames.h"

#include "cli/FileArgumentList.h"
#include "cli/Progress.h"
#include "platform/pathExtension.h"
#include "platform/shownPath.h"
#include "platform/visibleText.h"
#include <algorithm>
#include <csignal>
#include <QCoreApplication>
#include <QJsonArray>
#include <unistd.h>

namespace Varlo {

using namespace Qt::StringLiterals;

QString suggestedFileName(const FileItem &item)
{
    const QString extension = shownPath(pathExtension(item.path));
    return extension.isEmpty() ? item.suggestedName : item.suggestedName + u'.' + extension;
}

QJsonObject toJson(const FileItem &item)
{
    QJsonObject object { { u"status"_s, rawValue(item.status) }, { u"name"_s, item.suggestedName },
        { u"extension"_s, shownPath(pathExtension(item.path)) },
        { u"tags"_s, QJsonArray::fromStringList(item.suggestedTags) } };
    insertPath(object, u"path"_s, item.path);
    if (const auto *failed = std::get_if<FileItem::Failed>(&item.status))
        object.insert(u"message"_s, failed->message.text());
    return object;
}

bool hasFailed(const FileItem &item) { return std::holds_alternative<FileItem::Failed>(item.status); }

bool lacksKey(const FileItem &item)
{
    const auto *failed = std::get_if<FileItem::Failed>(&item.status);
    return failed && failed->message == description(MissingAPIKey {});
}

void adviseOnKey(Terminal &terminal)
{
    terminal.complain(QCoreApplication::translate("Terminal",
        "store a key with `varlo key set`, or use --offline; a model server on this machine takes any key"));
}

void exitOn(int signal)
{
    std::signal(signal, [](int) { ::_exit(static_cast<int>(ExitCode::Interrupted)); });
}

/// Sets what holds for this call; false after a complaint.
static bool applyOptions(const NamingOptions &naming, Session &session)
{
    if (naming.tags)
        session.preferences().setForThisProcess(Preference::writeFinderTags, *naming.tags);
    return !naming.templateId || session.nameTemplate(*naming.templateId);
}

static void complainOfRefused(
    const FileArgumentList &arguments, Terminal &terminal, const std::function<void(const FileItem &)> &whenDone)
{
    for (const RefusedArgument &refused : arguments.refused) {
        terminal.complain(pathFromHere(refused.path) + u": "_s + visibleText(refused.message));
        FileItem item;
        item.path = refused.path;
        item.status = FileItem::Failed { refused.message };
        whenDone(item);
    }
}

std::unique_ptr<RenamerViewModel> makeBatch(const NamingOptions &naming, Session &session)
{
    NameSuggestionService *suggester = session.suggester(naming);
    if (!suggester || !applyOptions(naming, session))
        return {};
    exitOn(SIGINT);
    auto batch = session.makeBatch(*suggester);
    batch->setFilenameLanguageOption(naming.language);
    batch->setSelectedTemplateID(naming.templateId);
    return batch;
}

std::optional<NamedBatch> suggestNames(const NamingOptions &naming, const FileArguments &arguments, Session &session,
    const std::function<void(const FileItem &)> &whenDone)
{
    std::unique_ptr<RenamerViewModel> batch = makeBatch(naming, session);
    if (!batch)
        return {};
    Terminal &terminal = session.terminal();
    const FileArgumentList list = lookAt(arguments, true);
    complainOfRefused(list, terminal, whenDone);
    QCoro::waitFor(batch->addFiles(list.paths, true));
    if (batch->dropFeedback() && list.refused.empty())
        terminal.complain(QCoreApplication::translate("Terminal", "Nothing here Varlo can rename."));

    qsizetype pendingCount = 0;
    for (const FileItem &item : batch->files()) {
        if (std::holds_alternative<FileItem::Pending>(item.status))
            ++pendingCount;
        else
            whenDone(item);
    }
    Progress progress(terminal, pendingCount);
    const auto connection = QObject::connect(batch.get(), &RenamerViewModel::suggestionFinished, [&](int row) {
        whenDone(batch->files()[static_cast<std::size_t>(row)]);
        progress.advance();
    });
    QCoro::waitFor(batch->suggestAll());
    QObject::disconnect(connection);
    if (std::ranges::any_of(batch->files(), lacksKey))
        adviseOnKey(terminal);
    return NamedBatch { std::move(batch), !list.refused.empty() };
}

} // namespace Varlo
