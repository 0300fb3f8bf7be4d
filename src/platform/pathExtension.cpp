// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/pathExtension.h"

#include <algorithm>

namespace Varlo {

static std::string_view lastComponent(std::string_view path)
{
    while (path.ends_with('/')) // "folder.app/" is called "folder.app"
        path.remove_suffix(1);
    return path.substr(path.rfind('/') + 1); // npos + 1 is 0
}

static std::string_view extensionOf(std::string_view path)
{
    const std::string_view name = lastComponent(path);
    const size_t dot = name.rfind('.');
    return dot == std::string_view::npos || dot == 0 ? std::string_view() : name.substr(dot + 1);
}

std::string pathExtension(const std::filesystem::path &path) { return pathExtension(std::string_view(path.native())); }

std::string pathExtension(std::string_view path) { return std::string(extensionOf(path)); }

std::string lowerCaseExtension(std::string_view path)
{
    std::string extension(extensionOf(path));
    std::transform(extension.begin(), extension.end(), extension.begin(),
        [](char byte) { return byte >= 'A' && byte <= 'Z' ? static_cast<char>(byte - 'A' + 'a') : byte; });
    return extension;
}

std::string lowerCaseExtension(const std::filesystem::path &path)
{
    return lowerCaseExtension(std::string_view(path.native()));
}

std::string baseName(const std::filesystem::path &path) { return baseName(std::string_view(path.native())); }

std::string baseName(std::string_view path)
{
    std::string_view name = lastComponent(path);
    const std::string_view extension = extensionOf(name);
    if (!extension.empty())
        name.remove_suffix(extension.size() + 1);
    return std::string(name);
}

} // namespace Varlo
