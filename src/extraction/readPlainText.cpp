// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "extraction/readPlainText.h"

#include "extraction/TextNormalizer.h"
#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <memory>
#include <QDeadlineTimer>
#include <sys/stat.h>
#include <unistd.h>

namespace Varlo {

// A chunk is still in the processor's second cache when it is looked at after the copy from the kernel.
constexpr size_t chunkSize = 128 * 1024;

static ssize_t readAt(const FileDescriptor &file, char *to, off_t offset)
{
    ssize_t count = 0;
    do {
        count = ::pread(file.get(), to, chunkSize, offset);
    } while (count < 0 && errno == EINTR);
    return count;
}

/// Where the next byte is that was ever written, from `offset` on; the end of the file where there is none.
static off_t nextData(const FileDescriptor &file, off_t offset)
{
    const off_t data = ::lseek(file.get(), offset, SEEK_DATA);
    if (data >= 0)
        return data;
    // Anything but "no more data" is a file system that cannot tell.
    return errno == ENXIO ? std::max(offset, ::lseek(file.get(), 0, SEEK_END)) : offset;
}

Extraction readPlainText(const FileDescriptor &file, std::chrono::milliseconds endlessLimit)
{
    struct stat status { };
    if (::fstat(file.get(), &status) != 0)
        return NoTextFound {};
    const bool hasHoles = status.st_blocks * 512 < status.st_size;
    ::posix_fadvise(file.get(), 0, 0, POSIX_FADV_SEQUENTIAL);

    TextNormalizer normalizer;
    const auto chunk = std::make_unique_for_overwrite<char[]>(chunkSize);
    QDeadlineTimer end(QDeadlineTimer::Forever);
    off_t offset = 0;
    while (!end.hasExpired()) {
        if (hasHoles && normalizer.hasEnough()) {
            const off_t data = nextData(file, offset);
            // One NUL stands for the hole: a sequence that it interrupts is wrong.
            if (data > offset && !normalizer.append(QByteArrayView("\0", 1)))
                return NoTextFound {};
            offset = data;
        }
        const ssize_t count = readAt(file, chunk.get(), offset);
        if (count == 0)
            return normalizer.finish();
        if (count < 0 || !normalizer.append({ chunk.get(), count }))
            return NoTextFound {};
        offset += count;
        if (offset > status.st_size && end.isForever())
            end.setRemainingTime(endlessLimit);
    }
    return NoTextFound {};
}

} // namespace Varlo
