// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/commands.h"
#include "cli/FileArgumentList.h"
#include "platform/visibleText.h"
#include "renaming/FolderBookmark.h"
#include <QCoreApplication>
#include <QJsonObject>

namespace Varlo {

using namespace Qt::StringLiterals;

ExitCode run(const FoldersListCommand &command, Session &session)
{
    for (const auto &[key, data] : session.folderAccess().grantedFolders()) {
        const auto bookmark = FolderBookmark::decode(data, key.toStdString());
        const std::filesystem::path folder = bookmark ? bookmark->granted : std::filesystem::path(key.toStdString());
        if (command.json) {
            QJsonObject object;
            insertPath(object, u"path"_s, folder);
            session.terminal().printJson(object);
        } else {
            session.terminal().print(visibleText(folder));
        }
    }
    return ExitCode::Success;
}

ExitCode run(const FoldersAddCommand &command, Session &session)
{
    ExitCode code = ExitCode::Success;
    for (const std::filesystem::path &given : command.folders) {
        const std::filesystem::path folder = resolvedArgument(given);
        std::error_code error;
        if (std::filesystem::is_directory(folder, error)) {
            session.folderAccess().addGrant(folder);
            continue;
        }
        session.terminal().complain(
            pathFromHere(folder) + u": "_s + SystemError { error ? error.value() : ENOTDIR }.description());
        code = ExitCode::SomeFailed;
    }
    return code;
}

ExitCode run(const FoldersRemoveCommand &command, Session &session)
{
    ExitCode code = ExitCode::Success;
    FolderAccess &access = session.folderAccess();
    for (const std::filesystem::path &given : command.folders) {
        const std::filesystem::path folder = resolvedArgument(given);
        const PreferenceDictionary grants = access.grantedFolders();
        const auto grant = std::ranges::find_if(grants, [&folder](const auto &entry) {
            const auto bookmark = FolderBookmark::decode(entry.second, entry.first.toStdString());
            return bookmark ? bookmark->granted == folder : entry.first.toStdString() == folder.native();
        });
        if (grant != grants.end()) {
            access.removeGrant(grant->first);
            continue;
        }
        session.terminal().complain(
            QCoreApplication::translate("Terminal", "%1 is not a folder that Varlo may rename in")
                .arg(pathFromHere(folder)));
        code = ExitCode::SomeFailed;
    }
    return code;
}

} // namespace Varlo
