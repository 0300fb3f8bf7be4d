// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "renaming/FolderAccessPanel.h"
#include "settings/Preferences.h"
#include <filesystem>
#include <map>
#include <QCoroTask>
#include <QObject>
#include <set>

namespace Varlo {

/// The folders in which the user allowed renaming. Grants are stored; which of them are in use, and which the user
/// declined during the rename action under way, is not. Lives on the main thread.
class FolderAccess final : public QObject {
    Q_OBJECT
public:
    /// Both outlive this object.
    FolderAccess(Preferences &preferences, FolderAccessPanel &panel, QObject *parent = nullptr);

    /// The text that the panel shows, and that of its confirming button.
    [[nodiscard]] static QString panelMessage();
    [[nodiscard]] static QString panelConfirmation();

    /// Bookmarks by the folder's path for showing; that is also the key to remove one by.
    [[nodiscard]] PreferenceDictionary grantedFolders() const;
    /// Opens the first grant that covers the path, unless one is open. False when none does.
    bool beginAccess(const std::filesystem::path &path);
    /// Remembers a folder that the user has just chosen.
    void addGrant(const std::filesystem::path &folder);
    void removeGrant(const QString &key);
    /// Asks the user, unless access is there already or was declined during this rename action. True when access now
    /// covers the folder.
    [[nodiscard]] QCoro::Task<bool> requestAccess(std::filesystem::path folder);
    /// A new rename action: folders declined before are asked for again.
    void forgetDeclined() { m_declinedFolders.clear(); }

private:
    [[nodiscard]] bool isActive(const std::filesystem::path &path) const;
    void store(const QString &key, const QByteArray &bookmark);

    Preferences &m_preferences;
    FolderAccessPanel &m_panel;
    std::map<QString, std::filesystem::path> m_activeFolders; ///< the granted path, in bytes, by its key
    std::set<std::filesystem::path> m_declinedFolders;
};

} // namespace Varlo
