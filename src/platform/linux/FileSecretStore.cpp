// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/FileSecretStore.h"

#include "platform/linux/FileLock.h"
#include "platform/linux/readStateFile.h"
#include "platform/linux/replaceFile.h"
#include "platform/linux/setAside.h"
#include "platform/linux/StateFolders.h"
#include "platform/shownPath.h"
#include <QJsonDocument>
#include <sys/stat.h>

namespace Varlo {

using Failure = SecretStore::Failure;

namespace {

enum class ReadFailure { Damaged, Unreadable };

Result<QJsonObject, ReadFailure> read(const std::filesystem::path &file)
{
    constexpr qint64 sizeLimit = 1024 * 1024;
    const auto content = readStateFile(file, sizeLimit);
    if (!content) {
        using enum StateFileError::Kind;
        const auto kind = content.error().kind;
        if (kind == Missing || kind == DanglingLink)
            return QJsonObject();
        return tl::unexpected(kind == TooLarge ? ReadFailure::Damaged : ReadFailure::Unreadable);
    }
    const QJsonDocument document = QJsonDocument::fromJson(*content);
    if (!document.isObject())
        return tl::unexpected(ReadFailure::Damaged);
    return document.object();
}

/// An earlier version, or the user, may have made the folder with wider rights.
bool makePrivateFolder(const std::filesystem::path &folder)
{
    return createStateFolder(folder) && ::chmod(folder.c_str(), S_IRWXU) == 0;
}

} // namespace

FileSecretStore::FileSecretStore(std::filesystem::path file)
    : m_file(std::move(file))
{
}

QCoro::Task<Result<QString, Failure>> FileSecretStore::load(QString account)
{
    const auto secrets = read(m_file);
    if (!secrets)
        co_return tl::unexpected(Failure::Unavailable);
    const QJsonValue secret = secrets->value(account);
    if (!secret.isString())
        co_return tl::unexpected(Failure::NotFound);
    co_return secret.toString();
}

QCoro::Task<Result<void, Failure>> FileSecretStore::save(QString account, QString secret)
{
    co_return change([&](QJsonObject &secrets) { secrets.insert(account, secret); });
}

QCoro::Task<Result<void, Failure>> FileSecretStore::remove(QString account)
{
    const auto secrets = read(m_file);
    if (!secrets)
        co_return tl::unexpected(Failure::Unavailable);
    if (!secrets->contains(account))
        co_return tl::unexpected(Failure::NotFound);
    co_return change([&](QJsonObject &stored) { stored.remove(account); });
}

QString FileSecretStore::description() const { return shownPath(m_file); }

Result<void, Failure> FileSecretStore::change(const std::function<void(QJsonObject &)> &edit) const
{
    if (!makePrivateFolder(m_file.parent_path()))
        return tl::unexpected(Failure::Unavailable);
    std::filesystem::path lockFile = m_file;
    lockFile += ".lock";
    const auto lock = FileLock::acquire(lockFile);
    if (!lock)
        return tl::unexpected(Failure::Unavailable);
    removeReplacementLeftovers(m_file);
    auto secrets = read(m_file);
    if (!secrets && (secrets.error() == ReadFailure::Unreadable || !setAside(m_file)))
        return tl::unexpected(Failure::Unavailable);
    QJsonObject edited = secrets.value_or(QJsonObject());
    edit(edited);
    if (!replaceFile(m_file, QJsonDocument(edited).toJson(), ReplacedMode::OwnerOnly))
        return tl::unexpected(Failure::Unavailable);
    return {};
}

} // namespace Varlo
