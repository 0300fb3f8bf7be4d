// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "workflow/WatchedFolder.h"

#include "platform/visibleText.h"
#include "settings/watchFolderPath.h"
#include "workflow/takeNewFiles.h"
#include <QPointer>

namespace Varlo {

static bool isAboutWatching(const QString &name)
{
    return name == Preference::watchFolderEnabled.name || name == Preference::watchFolderPath.name
        || name == Preference::watchFolderPathBytes.name || name == Preference::watchFolderIncludeExisting.name;
}

WatchedFolder::WatchedFolder(Preferences &preferences, FolderAccess &folderAccess, FolderWatcher &watcher,
    RenamerViewModel &batch, QObject *parent)
    : QObject(parent)
    , m_preferences(preferences)
    , m_folderAccess(folderAccess)
    , m_watcher(watcher)
    , m_applySoon(this)
{
    m_applySoon.setSingleShot(true);
    connect(&m_applySoon, &QTimer::timeout, this, &WatchedFolder::apply);
    connect(&preferences, &Preferences::changed, this, [this](const QString &name) {
        if (isAboutWatching(name))
            m_applySoon.start(0);
    });
    connect(&watcher, &FolderWatcher::newFilesFound, this,
        [&batch](const std::vector<std::filesystem::path> &files) { takeNewFiles(&batch, files); });
}

std::optional<WatchedFolder::Settings> WatchedFolder::settings() const
{
    const std::filesystem::path folder = watchFolderPath(m_preferences);
    if (!m_preferences.boolean(Preference::watchFolderEnabled) || folder.empty())
        return {};
    return Settings { folder, m_preferences.boolean(Preference::watchFolderIncludeExisting) };
}

void WatchedFolder::apply()
{
    const std::optional<Settings> wanted = settings();
    if (wanted == std::exchange(m_applied, wanted) && m_watcher.isWatching() == wanted.has_value())
        return;
    emit folderNameChanged();
    if (!wanted) {
        m_watcher.stop();
        return;
    }
    m_folderAccess.beginAccess(wanted->folder);
    static_cast<void>(m_watcher.start(wanted->folder, wanted->includeExisting));
}

QString WatchedFolder::folderName() const { return m_applied ? visibleText(m_applied->folder.filename()) : QString(); }

} // namespace Varlo
