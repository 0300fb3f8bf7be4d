// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/FileLock.h"

#include "platform/linux/retryInterrupted.h"
#include <fcntl.h>
#include <QDeadlineTimer>
#include <sys/file.h>
#include <sys/stat.h>
#include <thread>

namespace Varlo {

using namespace std::chrono_literals;

/// False when the lock file was deleted or replaced after it had been opened: others lock another file by then.
static bool isStillNamed(const FileDescriptor &file, const std::filesystem::path &path)
{
    struct stat opened { };
    struct stat named { };
    return ::fstat(file.get(), &opened) == 0 && ::stat(path.c_str(), &named) == 0 && opened.st_dev == named.st_dev
        && opened.st_ino == named.st_ino;
}

Result<FileLock, SystemError> FileLock::acquire(const std::filesystem::path &path, std::chrono::milliseconds limit)
{
    const QDeadlineTimer deadline(limit);
    for (;;) {
        FileDescriptor file(retryInterrupted([&] {
            return ::open(path.c_str(), O_RDWR | O_CREAT | O_NONBLOCK | O_CLOEXEC | O_NOCTTY, S_IRUSR | S_IWUSR);
        }));
        if (!file.isOpen())
            return tl::unexpected(SystemError::latest());
        if (retryInterrupted([&] { return ::flock(file.get(), LOCK_EX | LOCK_NB); }) == 0) {
            if (isStillNamed(file, path))
                return FileLock(std::move(file));
        } else if (errno != EWOULDBLOCK) {
            return tl::unexpected(SystemError::latest());
        }
        if (deadline.hasExpired())
            return tl::unexpected(SystemError { EAGAIN });
        // flock() has no time limit of its own, and a signal to end it could hit any other call.
        std::this_thread::sleep_for(2ms);
    }
}

} // namespace Varlo
