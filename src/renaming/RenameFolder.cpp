// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "renaming/RenameFolder.h"

#include "platform/linux/retryInterrupted.h"
#include <algorithm>
#include <cstdio>
#include <dirent.h>
#include <fcntl.h>
#include <memory>
#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <unistd.h>

namespace Varlo {

static auto latestError() { return tl::unexpected(SystemError::latest()); }

RenameFolder::RenameFolder(FileDescriptor descriptor, std::size_t longestName)
    : m_descriptor(std::move(descriptor))
    , m_longestName(longestName)
{
}

Result<RenameFolder, SystemError> RenameFolder::open(const std::filesystem::path &path)
{
    // O_PATH: a folder that may be written to but not listed is good enough.
    FileDescriptor descriptor(retryInterrupted([&] { return ::open(path.c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC); }));
    if (!descriptor.isOpen())
        return latestError();
    // An encrypted folder (eCryptfs) takes 143 bytes; FAT names its limit in characters, and more than others.
    const long limit = ::fpathconf(descriptor.get(), _PC_NAME_MAX);
    const std::size_t longest = limit > 0 ? static_cast<std::size_t>(limit) : Varlo::longestName;
    return RenameFolder(std::move(descriptor), std::min(longest, Varlo::longestName));
}

Result<NamedFile, SystemError> RenameFolder::find(const std::string &name, Knowledge knowledge) const
{
    struct statx status { };
    const int freshness = knowledge == Knowledge::Fresh ? AT_STATX_FORCE_SYNC : AT_STATX_SYNC_AS_STAT;
    const int answer = retryInterrupted([&] {
        return ::statx(m_descriptor.get(), name.c_str(), AT_SYMLINK_NOFOLLOW | AT_NO_AUTOMOUNT | freshness,
            STATX_BASIC_STATS | STATX_BTIME, &status);
    });
    if (answer != 0)
        return latestError();
    NamedFile file;
    file.identity = { ::makedev(status.stx_dev_major, status.stx_dev_minor), status.stx_ino };
    file.mode = status.stx_mode;
    file.linkCount = status.stx_nlink;
    if ((status.stx_mask & STATX_BTIME) != 0)
        file.birthTimeNs = static_cast<quint64>(status.stx_btime.tv_sec) * 1'000'000'000 + status.stx_btime.tv_nsec;
    return file;
}

Result<bool, SystemError> RenameFolder::lists(const std::string &name) const
{
    FileDescriptor listed(
        retryInterrupted([&] { return ::openat(m_descriptor.get(), ".", O_RDONLY | O_DIRECTORY | O_CLOEXEC); }));
    if (!listed.isOpen())
        return latestError();
    const std::unique_ptr<DIR, int (*)(DIR *)> listing(::fdopendir(listed.get()), &::closedir);
    if (!listing)
        return latestError();
    static_cast<void>(listed.release()); // closedir() closes it
    for (;;) {
        errno = 0;
        const dirent *entry = ::readdir(listing.get());
        if (!entry && errno != 0)
            return latestError();
        if (!entry)
            return false;
        if (name == entry->d_name)
            return true;
    }
}

Result<bool, SystemError> RenameFolder::isSecondLink(const std::string &name) const
{
    const auto found = find(name, Knowledge::Fresh);
    if (!found)
        return tl::unexpected(found.error());
    if (found->linkCount < 2)
        return false;
    return lists(name);
}

void RenameFolder::sync() const
{
    const FileDescriptor readable(
        retryInterrupted([&] { return ::openat(m_descriptor.get(), ".", O_RDONLY | O_DIRECTORY | O_CLOEXEC); }));
    // Where it cannot be synced the journal stands in: it knows the file by its inode and finds it under either name.
    if (readable.isOpen())
        static_cast<void>(retryInterrupted([&] { return ::fsync(readable.get()); }));
}

bool RenameFolder::isNamed(const PlannedMove &move, const std::string &name) const
{
    const auto found = find(name);
    return found && found->identity == move.file.identity;
}

Result<void, RenameFailure> RenameFolder::move(const PlannedMove &move, const BeforeLinking &beforeLinking) const
{
    const auto found = find(move.from);
    if (!found)
        return tl::unexpected(RenameFailure(found.error()));
    if (found->identity != move.file.identity || !found->isRenamable())
        return tl::unexpected(RenameFailure(FileChanged {}));

    const auto moved = move.isSameName ? moveWithinSameName(move) : moveByName(move, beforeLinking);
    if (moved)
        return checkMoved(move);
    // A network file system may have moved the file and lost the answer: what is on disk counts.
    if (!move.isSameName && isNamed(move, move.to) && !isNamed(move, move.from))
        return {};
    const auto left = find(move.from);
    if (left && left->identity != move.file.identity)
        return tl::unexpected(RenameFailure(FileChanged {}));
    return tl::unexpected(RenameFailure(moved.error()));
}

static bool isRefusalOfFlag(int code)
{
    return code == EINVAL || code == ENOSYS || code == EOPNOTSUPP || code == ENOTTY;
}

/// FAT says EPERM, others one of the rest. A folder that may not be written to is EACCES and is no reason to go on.
static bool isRefusalOfLinks(int code)
{
    return code == EPERM || code == EOPNOTSUPP || code == ENOSYS || code == EINVAL || code == EMLINK;
}

Result<void, SystemError> RenameFolder::moveByName(const PlannedMove &move, const BeforeLinking &beforeLinking) const
{
    const int folder = m_descriptor.get();
    const int answer = retryInterrupted(
        [&] { return ::renameat2(folder, move.from.c_str(), folder, move.to.c_str(), RENAME_NOREPLACE); });
    if (answer == 0)
        return {};
    if (!isRefusalOfFlag(errno))
        return latestError();
    const auto linked = moveByLink(move, beforeLinking);
    if (linked || !isRefusalOfLinks(linked.error().code))
        return linked;
    return moveByCheck(move);
}

/// A second name and then the first one away: slower, but a name that is taken is refused by the kernel here too.
Result<void, SystemError> RenameFolder::moveByLink(const PlannedMove &move, const BeforeLinking &beforeLinking) const
{
    const int folder = m_descriptor.get();
    if (const auto ready = beforeLinking(); !ready)
        return ready;
    if (retryInterrupted([&] { return ::linkat(folder, move.from.c_str(), folder, move.to.c_str(), 0); }) != 0)
        return latestError();
    const auto linked = find(move.to);
    const auto unlinked = unlinkExtraName(move.from, move.file);
    if (!unlinked && linked) // whichever file got the second name: it is taken back while it is no file's only one
        static_cast<void>(unlinkExtraName(move.to, *linked));
    return unlinked;
}

/// The last resort, for file systems with neither flag nor links (FAT over some bridges): between the two calls another
/// program could still take the name.
Result<void, SystemError> RenameFolder::moveByCheck(const PlannedMove &move) const
{
    const auto taken = find(move.to);
    if (taken)
        return tl::unexpected(SystemError { EEXIST });
    if (taken.error().code != ENOENT)
        return tl::unexpected(taken.error());
    const int folder = m_descriptor.get();
    if (retryInterrupted([&] { return ::renameat(folder, move.from.c_str(), folder, move.to.c_str()); }) != 0)
        return latestError();
    return {};
}

/// RENAME_NOREPLACE says EEXIST here, as the file itself answers to the new name.
Result<void, SystemError> RenameFolder::moveWithinSameName(const PlannedMove &move) const
{
    const auto isLink = isSecondLink(move.to);
    if (!isLink)
        return tl::unexpected(isLink.error());
    if (*isLink || !isNamed(move, move.to))
        return tl::unexpected(SystemError { EEXIST });
    const int folder = m_descriptor.get();
    if (retryInterrupted([&] { return ::renameat(folder, move.from.c_str(), folder, move.to.c_str()); }) != 0)
        return latestError();
    return {};
}

/// Another program may have put its own file under the old name just before the move: that one goes back.
Result<void, RenameFailure> RenameFolder::checkMoved(const PlannedMove &move) const
{
    const auto found = find(move.to);
    if (!found || found->identity == move.file.identity)
        return {};
    const int folder = m_descriptor.get();
    if (::renameat2(folder, move.to.c_str(), folder, move.from.c_str(), RENAME_NOREPLACE) == 0)
        return tl::unexpected(RenameFailure(FileChanged {}));
    return {}; // the old name is taken again: the file stays under the new one, and the history says so
}

Result<void, SystemError> RenameFolder::unlinkExtraName(const std::string &name, const NamedFile &file) const
{
    const auto found = find(name, Knowledge::Fresh);
    if (!found)
        return tl::unexpected(found.error());
    if (found->identity != file.identity || found->linkCount < 2)
        return tl::unexpected(SystemError { EEXIST });
    if (retryInterrupted([&] { return ::unlinkat(m_descriptor.get(), name.c_str(), 0); }) != 0)
        return latestError();
    return {};
}

} // namespace Varlo
