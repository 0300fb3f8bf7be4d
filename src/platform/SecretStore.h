// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Result.h"
#include <QCoroTask>
#include <QString>

namespace Varlo {

/// Keeps one secret an account. Nothing here shows a dialog while reading, and every call ends within seconds.
struct SecretStore {
    enum class Failure {
        NotFound, ///< the store was searched and has no such secret
        Locked, ///< it may have one, but the user has to unlock the keyring first
        Unavailable, ///< there is no store, or it did not answer in time
    };
    virtual ~SecretStore() = default;
    /// The secret's text; one that is not UTF-8 counts as NotFound.
    [[nodiscard]] virtual QCoro::Task<Result<QString, Failure>> load(QString account) = 0;
    /// Replaces an earlier secret of the account.
    [[nodiscard]] virtual QCoro::Task<Result<void, Failure>> save(QString account, QString secret) = 0;
    [[nodiscard]] virtual QCoro::Task<Result<void, Failure>> remove(QString account) = 0;
    /// Which store this is, in words for a status report ("Secret Service", or a file's path).
    [[nodiscard]] virtual QString description() const = 0;
};

} // namespace Varlo
