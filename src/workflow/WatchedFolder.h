// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "renaming/FolderAccess.h"
#include "settings/Preferences.h"
#include "watch/FolderWatcher.h"
#include "workflow/RenamerViewModel.h"
#include <filesystem>
#include <optional>
#include <QTimer>

namespace Varlo {

/// Has the folder watched that the preferences name, if any, and puts its new files into the batch, where they get
/// suggestions. Lives on the main thread.
class WatchedFolder final : public QObject {
    Q_OBJECT
    Q_PROPERTY(QString folderName READ folderName NOTIFY folderNameChanged)
public:
    /// All of them outlive this object. Nothing is watched before the first apply().
    WatchedFolder(Preferences &preferences, FolderAccess &folderAccess, FolderWatcher &watcher, RenamerViewModel &batch,
        QObject *parent = nullptr);

    /// Starts, restarts or stops the watcher as the preferences say now; a watch that is as they say goes on. Happens
    /// by itself when they change, in this process or another. A folder that cannot be watched leaves the watcher
    /// stopped.
    void apply();
    /// Of the folder that the preferences name, for showing; "" where they want none watched.
    [[nodiscard]] QString folderName() const;

signals:
    void folderNameChanged();

private:
    struct Settings {
        std::filesystem::path folder;
        bool includeExisting = false;

        bool operator==(const Settings &) const = default;
    };
    [[nodiscard]] std::optional<Settings> settings() const;

    Preferences &m_preferences;
    FolderAccess &m_folderAccess;
    FolderWatcher &m_watcher;
    QTimer m_applySoon; ///< several preferences changed at once make one restart
    std::optional<Settings> m_applied;
};

} // namespace Varlo
