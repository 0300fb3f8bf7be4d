// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/readStateFile.h"

#include "platform/linux/openRegularFile.h"
#include "platform/linux/retryInterrupted.h"
#include <QCoreApplication>
#include <sys/stat.h>
#include <unistd.h>

namespace Varlo {

using Kind = StateFileError::Kind;

Message StateFileError::description() const
{
    switch (kind) {
    case Kind::Missing:
        return { "StateFile", QT_TRANSLATE_NOOP("StateFile", "It does not exist.") };
    case Kind::DanglingLink:
        return { "StateFile", QT_TRANSLATE_NOOP("StateFile", "It is a link to a file that does not exist.") };
    case Kind::NotRegular:
        return { "StateFile", QT_TRANSLATE_NOOP("StateFile", "It is not a regular file.") };
    case Kind::TooLarge:
        return { "StateFile", QT_TRANSLATE_NOOP("StateFile", "It is too large.") };
    case Kind::System:
        return error.description();
    }
    Q_UNREACHABLE();
}

static StateFileError absence(const std::filesystem::path &path)
{
    std::error_code error;
    const bool isLink = std::filesystem::is_symlink(path, error);
    return { isLink ? Kind::DanglingLink : Kind::Missing, { ENOENT } };
}

Result<QByteArray, StateFileError> readStateFile(const std::filesystem::path &path, qint64 sizeLimit)
{
    const auto opened = openRegularFile(path);
    if (!opened) {
        const auto *error = std::get_if<SystemError>(&opened.error());
        if (!error)
            return tl::unexpected(StateFileError { Kind::NotRegular, {} });
        return tl::unexpected(error->code == ENOENT ? absence(path) : StateFileError { Kind::System, *error });
    }
    const FileDescriptor &file = *opened;
    struct stat status { };
    if (::fstat(file.get(), &status) != 0)
        return tl::unexpected(StateFileError { Kind::System, SystemError::latest() });
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
