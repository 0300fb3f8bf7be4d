// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/SecretStore.h"

namespace Varlo {

/// The keyring, and a file for the machines and sessions that have none. The file is written only while there is no
/// keyring, and an account that the keyring takes later leaves the file: so what the file has is always the newer
/// secret, and is looked at first.
class FallbackSecretStore final : public SecretStore {
public:
    /// Both outlive this object.
    FallbackSecretStore(SecretStore &keyring, SecretStore &file);

    [[nodiscard]] QCoro::Task<Result<QString, Failure>> load(QString account) override;
    [[nodiscard]] QCoro::Task<Result<void, Failure>> save(QString account, QString secret) override;
    /// From both. Done when either had it and neither may still have it.
    [[nodiscard]] QCoro::Task<Result<void, Failure>> remove(QString account) override;
    /// Of the store that the latest call ended with; the keyring before the first.
    [[nodiscard]] QString description() const override;

private:
    SecretStore &m_keyring;
    SecretStore &m_file;
    bool m_usesFile = false;
};

} // namespace Varlo
