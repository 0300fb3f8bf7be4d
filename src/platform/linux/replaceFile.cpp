// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/replaceFile.h"

#include "platform/FileDescriptor.h"
#include "platform/linux/retryInterrupted.h"
#include <algorithm>
#include <array>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace Varlo {

using std::filesystem::path;

constexpr size_t randomLetters = 6; // what mkostemp() puts for "XXXXXX"

static auto latestError() { return tl::unexpected(SystemError::latest()); }

Result<path, SystemError> linkDestination(const path &link)
{
    constexpr int deepestChain = 40; // the kernel's own limit
    path current = link;
    for (int depth = 0; depth < deepestChain; ++depth) {
        std::error_code error;
        const path target = std::filesystem::read_symlink(current, error);
        if (error == std::errc::invalid_argument || error == std::errc::no_such_file_or_directory)
            return current; // no link, or nothing there
        if (error)
            return tl::unexpected(SystemError { error.value() });
        current = current.parent_path() / target;
    }
    return tl::unexpected(SystemError { ELOOP });
}

static Result<void, SystemError> writeAll(const FileDescriptor &file, QByteArrayView content)
{
    qsizetype written = 0;
    while (written < content.size()) {
        const ssize_t count = retryInterrupted(
            [&] { return ::pwrite(file.get(), content.data() + written, content.size() - written, written); });
        if (count < 0)
            return latestError();
        if (count == 0)
            return tl::unexpected(SystemError { ENOSPC });
        written += count;
    }
    return {};
}

/// Catches a file system that took fewer bytes than it said.
static Result<void, SystemError> compare(const FileDescriptor &file, QByteArrayView content)
{
    struct stat status { };
    if (::fstat(file.get(), &status) != 0)
        return latestError();
    if (status.st_size != content.size())
        return tl::unexpected(SystemError { EIO });
    std::array<char, 65536> buffer;
    qsizetype compared = 0;
    while (compared < content.size()) {
        const ssize_t count
            = retryInterrupted([&] { return ::pread(file.get(), buffer.data(), buffer.size(), compared); });
        if (count < 0)
            return latestError();
        if (count == 0 || QByteArrayView(buffer.data(), count) != content.sliced(compared).first(count))
            return tl::unexpected(SystemError { EIO });
        compared += count;
    }
    return {};
}

static Result<void, SystemError> fill(const FileDescriptor &file, QByteArrayView content)
{
    if (const auto written = writeAll(file, content); !written)
        return written;
    if (retryInterrupted([&] { return ::fdatasync(file.get()); }) != 0)
        return latestError();
    return compare(file, content);
}

static Result<FileDescriptor, SystemError> openFolderOf(const path &file)
{
    const path folder = file.has_parent_path() ? file.parent_path() : path(".");
    FileDescriptor descriptor(
        retryInterrupted([&] { return ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC); }));
    if (!descriptor.isOpen())
        return latestError();
    return descriptor;
}

static Result<void, SystemError> syncFolder(const FileDescriptor &folder)
{
    // Some network and FUSE file systems cannot sync a folder and say EINVAL; there is no more to be had from them.
    if (retryInterrupted([&] { return ::fsync(folder.get()); }) != 0 && errno != EINVAL)
        return latestError();
    return {};
}

constexpr mode_t ownerOnly = S_IRUSR | S_IWUSR;

/// The mode of the file to be replaced, or that of a new file when there is none yet.
static Result<mode_t, SystemError> modeOfRegularFile(const path &file)
{
    struct stat status { };
    if (::lstat(file.c_str(), &status) != 0) {
        if (errno == ENOENT)
            return ownerOnly;
        return latestError();
    }
    if (S_ISDIR(status.st_mode))
        return tl::unexpected(SystemError { EISDIR });
    if (!S_ISREG(status.st_mode))
        return tl::unexpected(SystemError { EEXIST });
    // The folder's rights alone would let a rename replace a file that its owner has made read-only.
    if (::faccessat(AT_FDCWD, file.c_str(), W_OK, AT_EACCESS) != 0)
        return latestError();
    return status.st_mode & 07777;
}

static bool isSameFile(const FileDescriptor &file, const path &name)
{
    struct stat opened { };
    struct stat named { };
    return ::fstat(file.get(), &opened) == 0 && ::lstat(name.c_str(), &named) == 0 && opened.st_dev == named.st_dev
        && opened.st_ino == named.st_ino;
}

static Result<void, SystemError> fillAndRename(
    const FileDescriptor &file, const path &temporary, const path &destination, QByteArrayView content, mode_t mode)
{
    if (::fchmod(file.get(), mode) != 0)
        return latestError();
    if (const auto filled = fill(file, content); !filled)
        return filled;
    if (::rename(temporary.c_str(), destination.c_str()) != 0) {
        const SystemError error = SystemError::latest();
        // NFS may answer with an error for a rename that took place (the request was sent twice).
        if (!isSameFile(file, destination))
            return tl::unexpected(error);
    }
    return {};
}

static std::string temporaryPrefix(const path &destination)
{
    return "." + destination.filename().native() + ".varlo-";
}

Result<void, SystemError> replaceFile(const path &link, QByteArrayView content, ReplacedMode mode)
{
    const auto destination = linkDestination(link);
    if (!destination)
        return tl::unexpected(destination.error());
    const auto oldMode = modeOfRegularFile(*destination);
    if (!oldMode)
        return tl::unexpected(oldMode.error());
    const auto folder = openFolderOf(*destination);
    if (!folder)
        return tl::unexpected(folder.error());

    const path pattern = destination->parent_path() / (temporaryPrefix(*destination) + std::string(randomLetters, 'X'));
    std::string temporary;
    const FileDescriptor file(retryInterrupted([&] {
        temporary = pattern.native(); // a failed attempt has used up its letters
        return ::mkostemp(temporary.data(), O_CLOEXEC);
    }));
    if (!file.isOpen())
        return latestError();
    const mode_t newMode = mode == ReplacedMode::Kept ? *oldMode : ownerOnly;
    if (const auto renamed = fillAndRename(file, temporary, *destination, content, newMode); !renamed) {
        ::unlink(temporary.c_str());
        return renamed;
    }
    return syncFolder(*folder);
}

void removeReplacementLeftovers(const path &link)
{
    const auto destination = linkDestination(link);
    if (!destination)
        return;
    const std::string prefix = temporaryPrefix(*destination);
    std::error_code error;
    std::filesystem::directory_iterator entry(destination->parent_path(), error);
    for (; !error && entry != std::filesystem::directory_iterator(); entry.increment(error)) {
        const std::string name = entry->path().filename().native();
        if (name.starts_with(prefix) && name.size() == prefix.size() + randomLetters)
            ::unlink(entry->path().c_str());
    }
}

Result<void, SystemError> createFile(const path &name, QByteArrayView content)
{
    const auto folder = openFolderOf(name);
    if (!folder)
        return tl::unexpected(folder.error());
    const FileDescriptor file(retryInterrupted(
        [&] { return ::open(name.c_str(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, S_IRUSR | S_IWUSR); }));
    if (!file.isOpen())
        return latestError();
    if (const auto filled = fill(file, content); !filled) {
        ::unlink(name.c_str());
        return filled;
    }
    return syncFolder(*folder);
}

} // namespace Varlo
