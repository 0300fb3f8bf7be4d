// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/SecretStore.h"
#include <map>
#include <optional>

namespace Varlo {

/// Secrets in memory.
struct FakeSecretStore final : SecretStore {
    std::map<QString, QString> secrets; ///< by account
    std::optional<Failure> failure; ///< what every call answers, if anything

    [[nodiscard]] QCoro::Task<Result<QString, Failure>> load(QString account) override
    {
        if (failure)
            co_return tl::unexpected(*failure);
        const auto found = secrets.find(account);
        if (found == secrets.end())
            co_return tl::unexpected(Failure::NotFound);
        co_return QString(found->second); // QCoro moves out of whatever is returned
    }
    [[nodiscard]] QCoro::Task<Result<void, Failure>> save(QString account, QString secret) override
    {
        if (failure)
            co_return tl::unexpected(*failure);
        secrets.insert_or_assign(account, secret);
        co_return Result<void, Failure> {};
    }
    [[nodiscard]] QCoro::Task<Result<void, Failure>> remove(QString account) override
    {
        if (failure)
            co_return tl::unexpected(*failure);
        if (secrets.erase(account) == 0)
            co_return tl::unexpected(Failure::NotFound);
        co_return Result<void, Failure> {};
    }
    [[nodiscard]] QString description() const override { return QStringLiteral("memory"); }
};

} // namespace Varlo
