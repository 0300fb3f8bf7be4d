// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/FallbackSecretStore.h"

namespace Varlo {

using Failure = SecretStore::Failure;

FallbackSecretStore::FallbackSecretStore(SecretStore &keyring, SecretStore &file)
    : m_keyring(keyring)
    , m_file(file)
{
}

QCoro::Task<Result<QString, Failure>> FallbackSecretStore::load(QString account)
{
    const auto fromFile = co_await m_file.load(account);
    if (fromFile) {
        m_usesFile = true;
        co_return fromFile;
    }
    const auto fromKeyring = co_await m_keyring.load(account);
    m_usesFile = !fromKeyring && fromKeyring.error() == Failure::Unavailable;
    co_return m_usesFile ? fromFile : fromKeyring;
}

QCoro::Task<Result<void, Failure>> FallbackSecretStore::save(QString account, QString secret)
{
    const auto inKeyring = co_await m_keyring.save(account, secret);
    m_usesFile = !inKeyring && inKeyring.error() == Failure::Unavailable;
    if (m_usesFile)
        co_return co_await m_file.save(account, secret);
    if (inKeyring)
        (void)co_await m_file.remove(account);
    co_return inKeyring;
}

QCoro::Task<Result<void, Failure>> FallbackSecretStore::remove(QString account)
{
    const auto fromFile = co_await m_file.remove(account);
    const auto fromKeyring = co_await m_keyring.remove(account);
    m_usesFile = !fromKeyring && fromKeyring.error() == Failure::Unavailable;
    if (fromKeyring && !fromFile && fromFile.error() != Failure::NotFound)
        co_return fromFile;
    const bool keyringIsWithout = !fromKeyring && fromKeyring.error() != Failure::Locked;
    co_return keyringIsWithout ? fromFile : fromKeyring;
}

QString FallbackSecretStore::description() const { return m_usesFile ? m_file.description() : m_keyring.description(); }

} // namespace Varlo
