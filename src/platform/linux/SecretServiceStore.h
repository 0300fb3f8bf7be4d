// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/SecretStore.h"
#include <chrono>

namespace Varlo {

/// The desktop's keyring, as the freedesktop.org Secret Service API 0.2 offers it on the session bus. One item an
/// account, of the schema "com.varlo.api-key". A locked one is not NotFound: nobody should paste a key twice.
///
/// libsecret and GLib's D-Bus come in a module that is loaded at the first call: a start that needs no key does not pay
/// for them. Each call runs on a thread of its own, so that a keyring that hangs costs the caller no more than the
/// limit.
class SecretServiceStore final : public SecretStore {
public:
    static constexpr std::chrono::seconds readLimit { 2 };
    /// Long enough to type a password: saving and removing may ask the user to unlock the keyring.
    static constexpr std::chrono::seconds changeLimit { 60 };

    [[nodiscard]] QCoro::Task<Result<QString, Failure>> load(QString account) override;
    [[nodiscard]] QCoro::Task<Result<void, Failure>> save(QString account, QString secret) override;
    [[nodiscard]] QCoro::Task<Result<void, Failure>> remove(QString account) override;
    [[nodiscard]] QString description() const override;
};

} // namespace Varlo
