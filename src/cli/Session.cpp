// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/Session.h"

#include "platform/visibleText.h"
#include "suggestion/BuiltInNamer.h"
#include "suggestion/makeModelClient.h"
#include <QCoreApplication>

namespace Varlo {

using namespace Qt::StringLiterals;

Session::Session(Environment environment)
    : m_environment(std::move(environment))
    , m_folders(StateFolders::from(m_environment))
    , m_folderPanel(m_terminal)
{
}

Session::~Session() = default;

Preferences &Session::preferences()
{
    if (!m_preferences) {
        m_preferenceStore = std::make_unique<JsonPreferenceStore>(m_folders.config / "preferences.json");
        m_preferences = std::make_unique<Preferences>(*m_preferenceStore);
        m_language = std::make_unique<InterfaceLanguage>(*m_preferences, m_locale);
        tellNotices();
    }
    return *m_preferences;
}

void Session::tellNotices()
{
    QStringList notices;
    if (m_preferenceStore)
        notices += m_preferenceStore->takeNotices();
    if (m_renameLog)
        notices += m_renameLog->takeNotices();
    for (const QString &notice : std::as_const(notices))
        m_terminal.complain(visibleText(notice));
}

TemplateStore &Session::templateStore()
{
    if (!m_templateStore)
        m_templateStore = std::make_unique<TemplateStore>(preferences());
    return *m_templateStore;
}

std::optional<NameTemplate> Session::nameTemplate(const QString &id)
{
    std::optional<NameTemplate> found = templateStore().nameTemplate(id);
    if (!found) {
        m_terminal.complain(
            QCoreApplication::translate("Terminal", "there is no template with the id “%1”").arg(visibleText(id)));
    }
    return found;
}

FolderAccess &Session::folderAccess()
{
    if (!m_folderAccess)
        m_folderAccess = std::make_unique<FolderAccess>(preferences(), m_folderPanel);
    return *m_folderAccess;
}

RenameLog &Session::renameLog()
{
    if (!m_renameLog) {
        m_journal = std::make_unique<RenameJournal>(m_folders.state);
        m_renamer = std::make_unique<FileRenamer>(*m_journal, m_clock);
        m_renameLog = std::make_unique<RenameLog>(preferences(), *m_renamer, folderAccess());
        tellNotices();
    }
    return *m_renameLog;
}

IsolatedContentReader &Session::reader()
{
    if (!m_reader)
        m_reader = std::make_unique<IsolatedContentReader>(m_fileFlags,
            IsolatedContentReader::Options {
                {}, {}, [this](const QString &warning) { m_terminal.complain(visibleText(warning)); } });
    return *m_reader;
}

SecretStore &Session::secretStore()
{
    if (!m_secretStores)
        m_secretStores = std::make_unique<UserSecretStores>(m_folders);
    return m_secretStores->either;
}

std::optional<Endpoint> Session::endpoint(const std::optional<QString> &option)
{
    QString address = option.value_or(value(m_environment, "VARLO_ENDPOINT"));
    if (address.isEmpty())
        address = preferences().string(Preference::endpoint);
    const Result<Endpoint, Endpoint::Error> endpoint = Endpoint::parse(address);
    if (!endpoint) {
        m_terminal.complain(visibleText(address) + u": "_s + description(endpoint.error()));
        return {};
    }
    return *endpoint;
}

APIKeyStore &Session::keyStore(const Endpoint &endpoint)
{
    if (!m_keyStore)
        m_keyStore = std::make_unique<APIKeyStore>(secretStore(), endpoint, value(m_environment, "VARLO_API_KEY"));
    return *m_keyStore;
}

NameSuggestionService *Session::suggester(const NamingOptions &options)
{
    if (options.offline) {
        m_suggester = std::make_unique<BuiltInNamer>();
        return m_suggester.get();
    }
    const std::optional<Endpoint> chosen = endpoint(options.endpoint);
    if (!chosen)
        return nullptr;
    QString model = options.model.value_or(value(m_environment, "VARLO_MODEL"));
    if (model.isEmpty())
        model = preferences().string(Preference::model);
    APIKeyStore &keys = keyStore(*chosen);
    m_suggester = makeModelClient(*chosen, model, [&keys] { return keys.loadKey(); });
    if (!m_suggester)
        m_terminal.complain(QCoreApplication::translate("Terminal", "the part that asks a model is not installed"));
    return m_suggester.get();
}

std::unique_ptr<RenamerViewModel> Session::makeBatch(NameSuggestionService &suggester)
{
    RenameLog &log = renameLog(); // makes the renamer too
    return std::make_unique<RenamerViewModel>(RenamerViewModel::Collaborators {
        reader(), suggester, templateStore(), log, *m_renamer, folderAccess(), nullptr, preferences(), m_locale });
}

} // namespace Varlo
