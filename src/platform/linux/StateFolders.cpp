// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/StateFolders.h"

#include "platform/FileDescriptor.h"
#include "platform/linux/retryInterrupted.h"
#include <array>
#include <fcntl.h>
#include <pwd.h>
#include <string_view>
#include <sys/stat.h>
#include <unistd.h>

namespace Varlo {

using std::filesystem::path;

Environment processEnvironment()
{
    Environment environment;
    for (char **entry = environ; entry && *entry; ++entry) {
        const std::string_view text = *entry;
        const size_t equals = text.find('=');
        if (equals != std::string_view::npos)
            environment.emplace(text.substr(0, equals), text.substr(equals + 1));
    }
    return environment;
}

QString value(const Environment &environment, const std::string &name)
{
    const auto found = environment.find(name);
    return found == environment.end() ? QString() : QString::fromStdString(found->second);
}

static path absolutePath(const Environment &environment, const char *name)
{
    const auto found = environment.find(name);
    if (found == environment.end())
        return {};
    path value = found->second;
    return value.is_absolute() ? value : path {};
}

static path homeOfRecord()
{
    std::array<char, 16384> buffer;
    passwd entry {};
    passwd *found = nullptr;
    if (::getpwuid_r(::getuid(), &entry, buffer.data(), buffer.size(), &found) == 0 && found)
        return found->pw_dir;
    return "/";
}

static path homeFolder(const Environment &environment)
{
    path home = absolutePath(environment, "HOME");
    return home.empty() ? homeOfRecord() : home;
}

StateFolders StateFolders::from(const Environment &environment)
{
    const path home = homeFolder(environment);
    const auto folder = [&](const char *name, const char *belowHome) {
        const path base = absolutePath(environment, name);
        return ((base.empty() ? home / belowHome : base) / "varlo").lexically_normal();
    };
    return { folder("XDG_CONFIG_HOME", ".config"), folder("XDG_DATA_HOME", ".local/share"),
        folder("XDG_STATE_HOME", ".local/state"), folder("XDG_CACHE_HOME", ".cache") };
}

/// A new folder's name is safe from a power cut only once the folder that lists it is.
static void syncFolder(const path &folder)
{
    const FileDescriptor descriptor(
        retryInterrupted([&] { return ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC); }));
    if (descriptor.isOpen())
        ::fsync(descriptor.get());
}

Result<void, SystemError> createStateFolder(const path &folder)
{
    struct stat status { };
    if (::stat(folder.c_str(), &status) == 0) {
        if (S_ISDIR(status.st_mode))
            return {};
        return tl::unexpected(SystemError { ENOTDIR });
    }
    if (errno != ENOENT)
        return tl::unexpected(SystemError::latest());
    const path parent = folder.parent_path();
    if (parent != folder) {
        if (const auto made = createStateFolder(parent); !made)
            return made;
    }
    // Two Varlos that start at once both find it missing.
    if (::mkdir(folder.c_str(), S_IRWXU) != 0 && errno != EEXIST)
        return tl::unexpected(SystemError::latest());
    if (::stat(folder.c_str(), &status) != 0)
        return tl::unexpected(SystemError::latest());
    syncFolder(parent);
    return {};
}

} // namespace Varlo
