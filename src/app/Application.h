// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/DesktopMotion.h"
#include "app/FolderPanel.h"
#include "extraction/IsolatedContentReader.h"
#include "history/HistoryView.h"
#include "languages/InterfaceLanguage.h"
#include "platform/linux/JsonPreferenceStore.h"
#include "platform/linux/LinuxFileFlags.h"
#include "platform/linux/QtSystemLocale.h"
#include "platform/linux/StateFolders.h"
#include "platform/linux/SystemClock.h"
#include "platform/linux/UserSecretStores.h"
#include "renaming/FileRenamer.h"
#include "renaming/RenameJournal.h"
#include "suggestion/ConfiguredNameSuggester.h"
#include "templates/TemplateChoices.h"
#include "ui/AppUIState.h"
#include "ui/QuickLook.h"
#include "ui/SettingsModels.h"
#include "updates/UpdaterModel.h"
#include "workflow/RenamerViewModel.h"
#include "workflow/WatchedFolder.h"
#include <memory>
#include <QQmlApplicationEngine>

class QDBusConnection;
class QQuickWindow;

namespace Varlo {

/// The window's objects, made in the order in which they need each other.
class Application {
public:
    explicit Application(const Environment &environment);
    ~Application();

    /// Shows the main window; null, with a word on standard error, where it cannot be made.
    [[nodiscard]] QQuickWindow *show();
    [[nodiscard]] RenamerViewModel &batch() { return *m_batch; }
    /// Null before it is first shown.
    [[nodiscard]] QQuickWindow *window() const { return m_window; }
    /// Shows the window, or brings it to the front with what the desktop gave for that.
    void activate(const QVariantMap &platformData);
    /// "settings", "history" or "check-for-updates".
    void act(const QString &action);
    /// Takes up what the desktop says about motion.
    void followDesktop(const QDBusConnection &bus);
    /// Ends the program, after the rename in hand.
    void finish();

private:
    void retranslate();

    StateFolders m_folders;
    LinuxFileFlags m_fileFlags;
    QtSystemLocale m_locale;
    SystemClock m_clock;
    FolderPanel m_folderPanel;
    JsonPreferenceStore m_preferenceStore;
    Preferences m_preferences;
    InterfaceLanguage m_language;
    TemplateStore m_templateStore;
    FolderAccess m_folderAccess;
    RenameJournal m_journal;
    FileRenamer m_renamer;
    RenameLog m_renameLog;
    UserSecretStores m_secretStores;
    ConfiguredNameSuggester m_suggester;
    IsolatedContentReader m_reader;
    std::unique_ptr<RenamerViewModel> m_batch;
    TemplateChoices m_templateChoices;
    HistoryView m_historyView;
    QuickLook m_quickLook;
    FolderWatcher m_watcher;
    WatchedFolder m_watchedFolder;
    SettingsModels m_settings;
    AppUIState m_uiState;
    UpdaterModel m_updater;
    DesktopMotion m_desktopMotion;
    QQmlApplicationEngine m_engine;
    QQuickWindow *m_window = nullptr; // the engine's
};

} // namespace Varlo
