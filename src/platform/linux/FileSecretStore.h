// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/SecretStore.h"
#include "platform/SystemError.h"
#include <filesystem>
#include <functional>
#include <QJsonObject>

namespace Varlo {

/// Secrets in a file (0600, in a folder of its own with 0700) that holds one JSON object of accounts and secrets,
/// unencrypted: for machines without a keyring. Damaged, it is set aside when something is saved next, and read as
/// Unavailable until then.
class FileSecretStore final : public SecretStore {
public:
    /// The folder of `file` is this store's own. It is made at the first save.
    explicit FileSecretStore(std::filesystem::path file);

    [[nodiscard]] QCoro::Task<Result<QString, Failure>> load(QString account) override;
    [[nodiscard]] QCoro::Task<Result<void, Failure>> save(QString account, QString secret) override;
    [[nodiscard]] QCoro::Task<Result<void, Failure>> remove(QString account) override;
    [[nodiscard]] QString description() const override;

private:
    [[nodiscard]] Result<void, Failure> change(const std::function<void(QJsonObject &)> &edit) const;

    std::filesystem::path m_file;
};

} // namespace Varlo
