// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "suggestion/ConfiguredNameSuggester.h"

#include "suggestion/makeModelClient.h"
#include <QtGlobal>

namespace Varlo {

using NameOrError = Result<NameSuggestion, NameSuggestionError>;

struct ConfiguredNameSuggester::Client {
    Endpoint endpoint;
    QString model;
    std::shared_ptr<APIKeyStore> keyStore; // before what asks it
    std::unique_ptr<NameSuggestionService> service; ///< null where the module is not installed
};

static QString firstOf(const QString &environment, const QString &preference)
{
    return environment.isEmpty() ? preference : environment;
}

ConfiguredNameSuggester::ConfiguredNameSuggester(
    Preferences &preferences, SecretStore &secrets, ModelEnvironment environment, QObject *parent)
    : QObject(parent)
    , m_preferences(preferences)
    , m_secrets(secrets)
    , m_environment(std::move(environment))
{
    if (const auto start = endpoint(); start && !m_environment.key.isEmpty())
        m_environmentKeyAccount = start->account();
    connect(&preferences, &Preferences::changed, this, [this](const QString &name) {
        if (name == Preference::endpoint.name || name == Preference::model.name)
            emit changed();
    });
}

ConfiguredNameSuggester::~ConfiguredNameSuggester() = default;

QString ConfiguredNameSuggester::endpointText() const
{
    return firstOf(m_environment.endpoint, m_preferences.string(Preference::endpoint));
}

QString ConfiguredNameSuggester::model() const
{
    return firstOf(m_environment.model, m_preferences.string(Preference::model));
}

Result<Endpoint, Endpoint::Error> ConfiguredNameSuggester::endpoint() const { return Endpoint::parse(endpointText()); }

std::shared_ptr<APIKeyStore> ConfiguredNameSuggester::makeKeyStore(const Endpoint &endpoint) const
{
    const bool isEnvironments = endpoint.account() == m_environmentKeyAccount;
    return std::make_shared<APIKeyStore>(m_secrets, endpoint, isEnvironments ? m_environment.key : QString());
}

std::shared_ptr<APIKeyStore> ConfiguredNameSuggester::keyStore()
{
    const auto current = endpoint();
    if (!current)
        return nullptr;
    if (!m_keyStore || m_keyStoreAccount != current->account()) {
        m_keyStore = makeKeyStore(*current);
        m_keyStoreAccount = current->account();
    }
    return m_keyStore;
}

static std::unique_ptr<NameSuggestionService> makeService(
    const Endpoint &endpoint, const QString &model, APIKeyStore &keys)
{
    return makeModelClient(endpoint, model, [&keys] { return keys.loadKey(); });
}

QCoro::Task<NameOrError> ConfiguredNameSuggester::suggestName(SuggestionRequest request)
{
    const auto parsed = endpoint();
    if (!parsed) {
        NameSuggestionError error = TransportError { description(parsed.error()) };
        co_return tl::unexpected(std::move(error));
    }
    const QString asked = model();
    if (!m_client || !m_client->service || m_client->endpoint != *parsed || m_client->model != asked) {
        const auto keys = keyStore();
        m_client = std::make_shared<Client>(Client { *parsed, asked, keys, makeService(*parsed, asked, *keys) });
    }
    co_return co_await ask(m_client, std::move(request));
}

QCoro::Task<NameOrError> ConfiguredNameSuggester::tryOut(Endpoint endpoint, QString model, SuggestionRequest request)
{
    const auto keys = makeKeyStore(endpoint);
    const auto client = std::make_shared<Client>(Client { endpoint, model, keys, makeService(endpoint, model, *keys) });
    co_return co_await ask(client, std::move(request));
}

QCoro::Task<NameOrError> ConfiguredNameSuggester::ask(std::shared_ptr<Client> client, SuggestionRequest request)
{
    if (!client->service) {
        NameSuggestionError error = TransportError { { "ConfiguredNameSuggester",
            QT_TRANSLATE_NOOP("ConfiguredNameSuggester", "The part of Varlo that asks a model is not installed.") } };
        co_return tl::unexpected(std::move(error));
    }
    co_return co_await client->service->suggestName(std::move(request)); // and keeps the client until it has answered
}

} // namespace Varlo
