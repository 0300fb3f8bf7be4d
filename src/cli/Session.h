// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cli/Command.h"
#include "cli/Terminal.h"
#include "cli/TerminalFolderPanel.h"
#include "extraction/IsolatedContentReader.h"
#include "history/RenameLog.h"
#include "languages/InterfaceLanguage.h"
#include "platform/linux/JsonPreferenceStore.h"
#include "platform/linux/LinuxFileFlags.h"
#include "platform/linux/QtSystemLocale.h"
#include "platform/linux/StateFolders.h"
#include "platform/linux/SystemClock.h"
#include "platform/linux/UserSecretStores.h"
#include "renaming/FileRenamer.h"
#include "renaming/FolderAccess.h"
#include "renaming/RenameJournal.h"
#include "settings/APIKeyStore.h"
#include "settings/Endpoint.h"
#include "settings/Preferences.h"
#include "suggestion/NameSuggestionService.h"
#include "templates/TemplateStore.h"
#include "workflow/RenamerViewModel.h"
#include <memory>
#include <optional>

namespace Varlo {

/// The exit codes of the command.
enum class ExitCode { Success = 0, SomeFailed = 1, WrongUsage = 2, Interrupted = 130 };

/// Makes the objects that a subcommand works with, each at its first use, and hands them to each other.
class Session {
public:
    explicit Session(Environment environment);
    ~Session();

    [[nodiscard]] Terminal &terminal() { return m_terminal; }
    [[nodiscard]] const Environment &environment() const { return m_environment; }
    [[nodiscard]] const StateFolders &folders() const { return m_folders; }
    /// From the first call on, texts are in the language that they name.
    Preferences &preferences();
    [[nodiscard]] TemplateStore &templateStore();
    [[nodiscard]] RenameLog &renameLog();
    [[nodiscard]] FolderAccess &folderAccess();
    [[nodiscard]] TerminalFolderPanel &folderPanel() { return m_folderPanel; }
    [[nodiscard]] IsolatedContentReader &reader();
    [[nodiscard]] const SystemLocale &locale() const { return m_locale; }
    [[nodiscard]] SecretStore &secretStore();

    /// Complains and returns nothing where there is none with the id.
    [[nodiscard]] std::optional<NameTemplate> nameTemplate(const QString &id);
    /// The endpoint of an option, else of the environment, else of the preference, else the hosted one. Complains and
    /// returns nothing where it cannot be used.
    [[nodiscard]] std::optional<Endpoint> endpoint(const std::optional<QString> &option);
    [[nodiscard]] APIKeyStore &keyStore(const Endpoint &endpoint);
    /// Who suggests the names; nothing, after a complaint, where the options cannot be met.
    [[nodiscard]] NameSuggestionService *suggester(const NamingOptions &options);

    /// An empty batch that asks this suggester.
    [[nodiscard]] std::unique_ptr<RenamerViewModel> makeBatch(NameSuggestionService &suggester);

    /// Prints what state was found damaged.
    void tellNotices();

private:
    Environment m_environment;
    StateFolders m_folders;
    Terminal m_terminal;
    TerminalFolderPanel m_folderPanel;
    QtSystemLocale m_locale;
    LinuxFileFlags m_fileFlags;
    SystemClock m_clock;
    // In the order in which they use each other: the last is gone first.
    std::unique_ptr<JsonPreferenceStore> m_preferenceStore;
    std::unique_ptr<Preferences> m_preferences;
    std::unique_ptr<InterfaceLanguage> m_language;
    std::unique_ptr<TemplateStore> m_templateStore;
    std::unique_ptr<FolderAccess> m_folderAccess;
    std::unique_ptr<RenameJournal> m_journal;
    std::unique_ptr<FileRenamer> m_renamer;
    std::unique_ptr<RenameLog> m_renameLog;
    std::unique_ptr<UserSecretStores> m_secretStores;
    std::unique_ptr<APIKeyStore> m_keyStore;
    std::unique_ptr<NameSuggestionService> m_suggester;
    std::unique_ptr<IsolatedContentReader> m_reader;
};

} // namespace Varlo
