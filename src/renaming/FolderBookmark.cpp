// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "renaming/FolderBookmark.h"

#include "platform/FileDescriptor.h"
#include "platform/shownPath.h"
#include <fcntl.h>
#include <QJsonDocument>
#include <QJsonObject>
#include <sys/stat.h>
#include <unistd.h>

namespace Varlo {

using namespace Qt::StringLiterals;
using std::filesystem::path;

static std::optional<FileIdentity> identityOfFolder(const path &folder)
{
    struct stat status { };
    if (::stat(folder.c_str(), &status) != 0 || !S_ISDIR(status.st_mode))
        return std::nullopt;
    return FileIdentity { status.st_dev, status.st_ino };
}

std::optional<FolderBookmark> FolderBookmark::of(const std::filesystem::path &folder)
{
    const auto identity = identityOfFolder(folder);
    if (!identity)
        return std::nullopt;
    return FolderBookmark { folder, folder, *identity };
}

static void insertPath(QJsonObject &object, const QString &key, const path &value)
{
    const QString text = shownPath(value);
    object.insert(key, text);
    if (text.toStdString() != value.native())
        object.insert(key + "Bytes"_L1, QString::fromLatin1(QByteArray::fromStdString(value.native()).toBase64()));
}

static path pathIn(const QJsonObject &object, const QString &key)
{
    const QByteArray encoded = object.value(key + "Bytes"_L1).toString().toLatin1();
    if (!encoded.isEmpty())
        return QByteArray::fromBase64(encoded).toStdString();
    return object.value(key).toString().toStdString();
}

QByteArray FolderBookmark::encoded() const
{
    QJsonObject object;
    insertPath(object, u"path"_s, path);
    if (granted != path || shownPath(granted).toStdString() != granted.native())
        insertPath(object, u"granted"_s, granted);
    // As text: a JSON number loses what is beyond 2^53.
    object.insert("device"_L1, QString::number(identity.device));
    object.insert("inode"_L1, QString::number(identity.inode));
    return QJsonDocument(object).toJson(QJsonDocument::Compact);
}

std::optional<FolderBookmark> FolderBookmark::decode(const QByteArray &data, const std::filesystem::path &granted)
{
    const QJsonObject object = QJsonDocument::fromJson(data).object();
    FolderBookmark bookmark;
    bookmark.path = pathIn(object, u"path"_s);
    bookmark.granted = object.contains("granted"_L1) ? pathIn(object, u"granted"_s) : granted;
    bool hasDevice = false;
    bool hasInode = false;
    bookmark.identity.device = object.value("device"_L1).toString().toULongLong(&hasDevice);
    bookmark.identity.inode = object.value("inode"_L1).toString().toULongLong(&hasInode);
    if (!bookmark.path.is_absolute() || !bookmark.granted.is_absolute() || !hasDevice || !hasInode)
        return std::nullopt;
    return bookmark;
}

std::optional<FolderBookmark::Resolved> FolderBookmark::resolve() const
{
    if (const auto now = identityOfFolder(path))
        return Resolved { path, *now != identity };
    std::error_code error;
    for (std::filesystem::directory_iterator entry(path.parent_path(), error), end; !error && entry != end;
         entry.increment(error)) {
        std::error_code unknown;
        const bool isFolder = entry->symlink_status(unknown).type() == std::filesystem::file_type::directory;
        if (isFolder && identityOfFolder(entry->path()) == identity)
            return Resolved { entry->path(), true };
    }
    return std::nullopt;
}

bool canRenameIn(const path &folder)
{
    const FileDescriptor listed(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    return listed.isOpen() && ::faccessat(AT_FDCWD, folder.c_str(), W_OK | X_OK, AT_EACCESS) == 0;
}

} // namespace Varlo
