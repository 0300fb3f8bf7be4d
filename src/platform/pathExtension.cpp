// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/pathExtension.h"

#include <algorithm>

namespace Varlo {

static std::string lastComponent(const std::filesystem::path &path)
{
    // "folder.app/" has an empty file name behind its slash.
    return (path.has_filename() ? path : path.parent_path()).filename().string();
}

std::string pathExtension(const std::filesystem::path &path)
{
    const std::string name = lastComponent(path);
    const size_t dot = name.rfind('.');
    if (dot == std::string::npos || dot == 0)
        return {};
    return name.substr(dot + 1);
}

std::string lowerCaseExtension(const std::filesystem::path &path)
{
    std::string extension = pathExtension(path);
    std::transform(extension.begin(), extension.end(), extension.begin(),
        [](char byte) { return byte >= 'A' && byte <= 'Z' ? static_cast<char>(byte - 'A' + 'a') : byte; });
    return extension;
}

std::string baseName(const std::filesystem::path &path)
{
    std::string name = lastComponent(path);
    const std::string extension = pathExtension(path);
    if (!extension.empty())
        name.resize(name.size() - extension.size() - 1);
    return name;
}

} // namespace Varlo
