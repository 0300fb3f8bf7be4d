// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/SecretStore.h"
#include "settings/Endpoint.h"
#include <QCoroTask>
#include <QObject>

namespace Varlo {

/// The user's key for the model: whether there is one, and the only way to it. It is never shown, logged or kept in
/// memory longer than a call. Lives on the main thread.
class APIKeyStore : public QObject {
    Q_OBJECT
    Q_PROPERTY(bool hasKey READ hasKey NOTIFY hasKeyChanged)
public:
    /// `environmentKey` stands over the secret store where it is not empty (VARLO_API_KEY). The store outlives this
    /// object.
    APIKeyStore(SecretStore &store, Endpoint endpoint, QString environmentKey = {}, QObject *parent = nullptr);

    /// As known from the latest call below; false before the first.
    [[nodiscard]] bool hasKey() const;
    [[nodiscard]] QCoro::Task<Result<QString, SecretStore::Failure>> loadKey();
    /// Spaces and tabs at the ends are dropped (line breaks stay); an empty rest saves nothing and is NotFound.
    [[nodiscard]] QCoro::Task<Result<void, SecretStore::Failure>> saveKey(QString key);
    [[nodiscard]] QCoro::Task<Result<void, SecretStore::Failure>> deleteKey();

signals:
    void hasKeyChanged();

private:
    void setHasKey(bool hasKey);

    SecretStore &m_store;
    Endpoint m_endpoint;
    QString m_environmentKey;
    bool m_hasKey = false;
};

} // namespace Varlo
