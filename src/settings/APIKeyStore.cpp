// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/APIKeyStore.h"

#include <QPointer>

namespace Varlo {

using Failure = SecretStore::Failure;

/// Spaces of every width, for a key copied from a web page often brings a no-break space along. Line breaks are no
/// spaces here.
static bool isSpaceOrTab(QChar character)
{
    return character == u'\t' || character.category() == QChar::Separator_Space;
}

static QString trimmedKey(const QString &text)
{
    QStringView rest = text;
    while (!rest.isEmpty() && isSpaceOrTab(rest.first()))
        rest = rest.sliced(1);
    while (!rest.isEmpty() && isSpaceOrTab(rest.last()))
        rest.chop(1);
    return rest.toString();
}

APIKeyStore::APIKeyStore(SecretStore &store, Endpoint endpoint, QString environmentKey, QObject *parent)
    : QObject(parent)
    , m_store(store)
    , m_endpoint(std::move(endpoint))
    , m_environmentKey(std::move(environmentKey))
{
}

bool APIKeyStore::hasKey() const { return m_hasKey; }

QCoro::Task<Result<QString, Failure>> APIKeyStore::loadKey()
{
    if (!m_environmentKey.isEmpty()) {
        setHasKey(true);
        co_return QString(m_environmentKey); // QCoro moves out of whatever is returned, members included
    }
    const QPointer<APIKeyStore> self = this;
    auto loaded = co_await m_store.load(m_endpoint.account());
    if (loaded && loaded->isEmpty())
        loaded = tl::unexpected(Failure::NotFound);
    if (self)
        setHasKey(loaded.has_value());
    co_return loaded;
}

QCoro::Task<Result<void, Failure>> APIKeyStore::saveKey(QString key)
{
    const QString trimmed = trimmedKey(key);
    if (trimmed.isEmpty())
        co_return tl::unexpected(Failure::NotFound);
    const QPointer<APIKeyStore> self = this;
    const auto saved = co_await m_store.save(m_endpoint.account(), trimmed);
    if (self && saved)
        setHasKey(true);
    co_return saved;
}

QCoro::Task<Result<void, Failure>> APIKeyStore::deleteKey()
{
    const QPointer<APIKeyStore> self = this;
    const auto removed = co_await m_store.remove(m_endpoint.account());
    if (self)
        setHasKey(!m_environmentKey.isEmpty());
    co_return removed;
}

void APIKeyStore::setHasKey(bool hasKey)
{
    if (m_hasKey == hasKey)
        return;
    m_hasKey = hasKey;
    emit hasKeyChanged();
}

} // namespace Varlo
