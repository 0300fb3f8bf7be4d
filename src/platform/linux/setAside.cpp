// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/setAside.h"

#include "platform/linux/replaceFile.h"
#include <fcntl.h>
#include <string>
#include <unistd.h>

namespace Varlo {

using std::filesystem::path;

/// Calls `create` with "NAME.damaged-1.EXTENSION", -2 and so on until one is not taken.
template <typename Create> static Result<path, SystemError> makeDamagedFile(const path &file, const Create &create)
{
    constexpr int numbers = 1000;
    for (int number = 1; number <= numbers; ++number) {
        path name = file.stem();
        name += ".damaged-" + std::to_string(number);
        name += file.extension();
        path candidate = file.parent_path() / name;
        const Result<void, SystemError> created = create(candidate);
        if (created)
            return candidate;
        if (created.error().code != EEXIST)
            return tl::unexpected(created.error());
    }
    return tl::unexpected(SystemError { EEXIST });
}

static Result<void, SystemError> renameWithoutReplacing(const path &from, const path &to)
{
    if (::renameat2(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), RENAME_NOREPLACE) == 0)
        return {};
    if (errno != EINVAL && errno != ENOSYS)
        return tl::unexpected(SystemError::latest());
    // A file system without that flag: a hard link does not replace either.
    if (::link(from.c_str(), to.c_str()) != 0 || ::unlink(from.c_str()) != 0)
        return tl::unexpected(SystemError::latest());
    return {};
}

Result<path, SystemError> setAside(const path &link)
{
    const auto file = linkDestination(link);
    if (!file)
        return tl::unexpected(file.error());
    return makeDamagedFile(*file, [&](const path &candidate) { return renameWithoutReplacing(*file, candidate); });
}

Result<path, SystemError> keepCopy(const path &file, QByteArrayView content)
{
    return makeDamagedFile(file, [&](const path &candidate) { return createFile(candidate, content); });
}

} // namespace Varlo
