// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "watch/listSupportedFiles.h"

#include "extraction/supportedExtensions.h"
#include "platform/pathExtension.h"
#include <dirent.h>
#include <memory>

namespace Varlo {

static bool isLink(const std::filesystem::path &path, unsigned char kind)
{
    std::error_code ignored;
    return kind == DT_LNK || (kind == DT_UNKNOWN && std::filesystem::is_symlink(path, ignored));
}

Result<std::vector<ListedFile>, SystemError> listSupportedFiles(const std::filesystem::path &folder)
{
    const std::unique_ptr<DIR, int (*)(DIR *)> stream(::opendir(folder.c_str()), &::closedir);
    if (!stream)
        return tl::unexpected(SystemError::latest());
    std::vector<ListedFile> files;
    while (const dirent *entry = ::readdir(stream.get())) {
        const std::string_view name(entry->d_name);
        if (name.starts_with('.') || !supportedExtensions().contains(lowerCaseExtension(name)))
            continue;
        std::filesystem::path path = folder / name;
        if (isLink(path, entry->d_type)) {
            std::error_code error;
            const std::filesystem::path target = std::filesystem::canonical(path, error);
            if (!error && std::filesystem::is_directory(target, error))
                continue;
            if (!target.empty())
                path = target;
        }
        files.push_back({ std::string(name), std::move(path) });
    }
    return files;
}

} // namespace Varlo
