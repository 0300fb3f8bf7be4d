// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "settings/APIKeyStore.h"
#include "settings/Endpoint.h"
#include "settings/Preferences.h"
#include "suggestion/NameSuggestionService.h"
#include <memory>

namespace Varlo {

/// What the environment says of the model; "" where it says nothing. It stands over the preferences.
struct ModelEnvironment {
    QString endpoint; ///< VARLO_ENDPOINT
    QString model; ///< VARLO_MODEL
    QString key; ///< VARLO_API_KEY
};

/// Asks the model that environment and preferences name at the moment of the request: a change of theirs holds from the
/// next file on. Lives on the main thread.
class ConfiguredNameSuggester final : public QObject, public NameSuggestionService {
    Q_OBJECT
public:
    /// All of them outlive this object.
    ConfiguredNameSuggester(
        Preferences &preferences, SecretStore &secrets, ModelEnvironment environment, QObject *parent = nullptr);
    ~ConfiguredNameSuggester() override;

    [[nodiscard]] const ModelEnvironment &environment() const { return m_environment; }
    [[nodiscard]] QString endpointText() const; ///< as it was set; "" for the hosted one
    [[nodiscard]] QString model() const; ///< "" for the usual one
    [[nodiscard]] Result<Endpoint, Endpoint::Error> endpoint() const;
    /// Of the key for the endpoint in use; null where that is none. Another one with each endpoint.
    [[nodiscard]] std::shared_ptr<APIKeyStore> keyStore();

    /// Fails with the address's fault where the endpoint is none, rather than ask another.
    [[nodiscard]] QCoro::Task<Result<NameSuggestion, NameSuggestionError>> suggestName(
        SuggestionRequest request) override;
    /// Asks an endpoint and a model that need not be set, with the key saved for that endpoint.
    [[nodiscard]] QCoro::Task<Result<NameSuggestion, NameSuggestionError>> tryOut(
        Endpoint endpoint, QString model, SuggestionRequest request);

signals:
    /// Endpoint or model are other ones.
    void changed();

private:
    struct Client;
    [[nodiscard]] static QCoro::Task<Result<NameSuggestion, NameSuggestionError>> ask(
        std::shared_ptr<Client> client, SuggestionRequest request);
    /// The environment's key goes nowhere but where environment and preferences pointed at the start.
    [[nodiscard]] std::shared_ptr<APIKeyStore> makeKeyStore(const Endpoint &endpoint) const;

    Preferences &m_preferences;
    SecretStore &m_secrets;
    ModelEnvironment m_environment;
    QString m_environmentKeyAccount; ///< "" for none
    std::shared_ptr<APIKeyStore> m_keyStore; ///< the latest; requests under way may hold earlier ones
    QString m_keyStoreAccount;
    std::shared_ptr<Client> m_client; ///< likewise
};

} // namespace Varlo
