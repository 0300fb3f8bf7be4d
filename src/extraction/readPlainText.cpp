// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "extraction/readPlainText.h"

#include "extraction/TextNormalizer.h"
#include "platform/linux/retryInterrupted.h"
#include <algorithm>
#include <array>
#include <cerrno>
#include <fcntl.h>
#include <memory>
#include <QDeadlineTimer>
#include <sys/stat.h>
#include <unistd.h>

namespace Varlo {

namespace {
// Small enough to be still in the processor's second cache when it is looked at. Aligned, since the
// kernel's copy took half as long again to where malloc() put it, 16 bytes into a cache line.
struct alignas(4096) Chunk {
    std::array<char, size_t { 128 } * 1024> bytes;
};
} // namespace

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
    const auto chunk = std::make_unique_for_overwrite<Chunk>();
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
        const ssize_t count
            = retryInterrupted([&] { return ::pread(file.get(), chunk->bytes.data(), chunk->bytes.size(), offset); });
        if (count == 0)
            return normalizer.finish();
        if (count < 0 || !normalizer.append({ chunk->bytes.data(), count }))
            return NoTextFound {};
        offset += count;
        if (offset > status.st_size && end.isForever())
            end.setRemainingTime(endlessLimit);
    }
    return NoTextFound {};
}

} // namespace Varlo
