// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "workflow/FolderWalk.h"

#include "extraction/supportedExtensions.h"
#include "platform/FileDescriptor.h"
#include "platform/pathExtension.h"
#include <algorithm>
#include <array>
#include <dirent.h>
#include <fcntl.h>
#include <string_view>
#include <sys/stat.h>

namespace Varlo {

namespace {

/// A folder that the desktop shows as one thing.
bool isPackage(std::string_view name)
{
    static constexpr std::array<std::string_view, 9> packages { "app", "bundle", "framework", "plugin", "kext",
        "photoslibrary", "rtfd", "xcodeproj", "playground" };
    return std::ranges::find(packages, lowerCaseExtension(name)) != packages.end();
}

void readStatus(int folder, const char *name, FolderWalk::File &file)
{
    struct stat status { };
    if (::fstatat(folder, name, &status, AT_SYMLINK_NOFOLLOW) != 0)
        return;
    file.identity = FileIdentity { status.st_dev, status.st_ino };
    if (S_ISLNK(status.st_mode) && ::fstatat(folder, name, &status, 0) != 0)
        return;
    file.byteSize = status.st_size;
}

} // namespace

struct FolderWalk::Entry {
    std::string name;
    bool isFolder = false;
    bool isWanted = false; // by its extension
    File file; // filled in when it is wanted
};

struct FolderWalk::Folder {
    std::string prefix; // the path with a "/" behind it
    std::vector<Entry> entries;
    std::size_t next = 0;
};

FolderWalk::FolderWalk(std::vector<std::filesystem::path> given)
    : m_given(std::move(given))
{
}

FolderWalk::~FolderWalk() = default;

std::vector<FolderWalk::File> FolderWalk::next(std::chrono::milliseconds duration)
{
    const auto end = std::chrono::steady_clock::now() + duration;
    std::vector<File> found;
    while (found.empty() || std::chrono::steady_clock::now() < end) {
        if (m_open.empty()) {
            if (m_nextGiven == m_given.size())
                break;
            visitGiven(m_given[m_nextGiven++], found);
            continue;
        }
        Folder &folder = *m_open.back();
        if (folder.next == folder.entries.size()) {
            m_open.pop_back();
            continue;
        }
        Entry &entry = folder.entries[folder.next++];
        std::string path = folder.prefix + entry.name;
        if (entry.isFolder)
            enter(path); // may move m_open's elements, never the folders that they own
        if (entry.isWanted) {
            entry.file.path = std::move(path);
            found.push_back(std::move(entry.file));
        }
    }
    return found;
}

void FolderWalk::visitGiven(const std::filesystem::path &path, std::vector<File> &found)
{
    struct stat status { };
    if (::stat(path.c_str(), &status) != 0)
        return;
    if (S_ISDIR(status.st_mode)) {
        enter(path);
        return;
    }
    if (!supportedExtensions().contains(lowerCaseExtension(path)))
        return;
    File file { path, 0, {} };
    readStatus(AT_FDCWD, path.c_str(), file);
    found.push_back(std::move(file));
}

void FolderWalk::enter(const std::filesystem::path &path)
{
    // Below a given folder links are told by their entry's kind and never get here.
    FileDescriptor descriptor(::open(path.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (!descriptor.isOpen())
        return;
    const int folderDescriptor = descriptor.get();
    const std::unique_ptr<DIR, int (*)(DIR *)> stream(::fdopendir(descriptor.release()), &::closedir);
    if (!stream)
        return;

    auto folder = std::make_unique<Folder>();
    folder->prefix = path.native();
    if (!folder->prefix.ends_with('/'))
        folder->prefix += '/';
    while (const dirent *listed = ::readdir(stream.get())) {
        if (listed->d_name[0] == '.')
            continue;
        const std::string_view name(listed->d_name);
        unsigned char kind = listed->d_type;
        if (kind == DT_UNKNOWN) {
            struct stat status { };
            if (::fstatat(folderDescriptor, listed->d_name, &status, AT_SYMLINK_NOFOLLOW) == 0)
                kind = IFTODT(status.st_mode);
        }
        Entry entry { std::string(name), kind == DT_DIR && !isPackage(name), false, {} };
        entry.isWanted = supportedExtensions().contains(lowerCaseExtension(name));
        if (entry.isWanted)
            readStatus(folderDescriptor, listed->d_name, entry.file);
        if (entry.isFolder || entry.isWanted)
            folder->entries.push_back(std::move(entry));
    }
    std::ranges::sort(folder->entries, {}, &Entry::name);
    m_open.push_back(std::move(folder));
}

} // namespace Varlo
