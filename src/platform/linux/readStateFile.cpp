// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/readStateFile.h"

#include "platform/FileDescriptor.h"
#include "platform/linux/retryInterrupted.h"
#include <fcntl.h>
#include <QCoreApplication>
#include <sys/stat.h>
#include <unistd.h>

namespace Varlo {

using Kind = StateFileError::Kind;

QString StateFileError::description() const
{
    switch (kind) {
    case Kind::Missing:
        return QCoreApplication::translate("StateFile", "It does not exist.");
    case Kind::DanglingLink:
        return QCoreApplication::translate("StateFile", "It is a link to a file that does not exist.");
    case Kind::NotRegular:
        return QCoreApplication::translate("StateFile", "It is not a regular file.");
    case Kind::TooLarge:
        return QCoreApplication::translate("StateFile", "It is too large.");
    case Kind::System:
        return error.description();
    }
    Q_UNREACHABLE();
}

static StateFileError openingError(const std::filesystem::path &path)
{
    const SystemError error = SystemError::latest();
    if (error.code == ENXIO) // a socket
        return { Kind::NotRegular, error };
    if (error.code != ENOENT)
        return { Kind::System, error };
    struct stat status { };
    const bool isLink = ::lstat(path.c_str(), &status) == 0 && S_ISLNK(status.st_mode);
    return { isLink ? Kind::DanglingLink : Kind::Missing, error };
}

Result<QByteArray, StateFileError> readStateFile(const std::filesystem::path &path, qint64 sizeLimit)
{
    const FileDescriptor file(
        retryInterrupted([&] { return ::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY); }));
    if (!file.isOpen())
        return tl::unexpected(openingError(path));
    struct stat status { };
    if (::fstat(file.get(), &status) != 0)
        return tl::unexpected(StateFileError { Kind::System, SystemError::latest() });
    if (!S_ISREG(status.st_mode))
        return tl::unexpected(StateFileError { Kind::NotRegular, {} });
    if (status.st_size > sizeLimit)
        return tl::unexpected(StateFileError { Kind::TooLarge, {} });

    QByteArray content(status.st_size, Qt::Uninitialized);
    qsizetype filled = 0;
    while (filled < content.size()) {
        const ssize_t count = retryInterrupted(
            [&] { return ::pread(file.get(), content.data() + filled, content.size() - filled, filled); });
        if (count < 0)
            return tl::unexpected(StateFileError { Kind::System, SystemError::latest() });
        if (count == 0)
            break;
        filled += count;
    }
    content.truncate(filled);
    return content;
}

} // namespace Varlo
