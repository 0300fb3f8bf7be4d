// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <algorithm>
#include <filesystem>
#include <QString>

namespace Varlo {

/// A path's text for showing: bytes that are not UTF-8 become U+FFFD, so the file cannot be opened by it.
[[nodiscard]] inline QString shownPath(const std::filesystem::path &path)
{
    return QString::fromUtf8(path.native().data(), static_cast<qsizetype>(path.native().size()));
}

/// True for a path that has nothing to be taken away: no "//", no "." and ".." and no "/" at its end.
[[nodiscard]] inline bool isStandardized(const std::filesystem::path &path)
{
    const std::string &text = path.native();
    for (std::size_t slash = 0; slash < text.size();) {
        const std::size_t next = std::min(text.find('/', slash + 1), text.size());
        const std::size_t length = next - slash - 1;
        const bool isDots = text.compare(slash + 1, length, ".") == 0 || text.compare(slash + 1, length, "..") == 0;
        if (text[slash] != '/' || length == 0 || isDots)
            return false;
        slash = next;
    }
    return !text.empty();
}

/// The path without "." and "..", and without a "/" at its end; absolute, and with its symbolic links left in.
[[nodiscard]] inline std::filesystem::path standardizedPath(const std::filesystem::path &path)
{
    if (isStandardized(path)) // nearly always, and the rest makes a dozen strings
        return path;
    std::error_code ignored; // only an unreadable current folder can fail here, and then the path stays relative
    const std::filesystem::path absolute = path.is_absolute() ? path : std::filesystem::absolute(path, ignored);
    const std::filesystem::path normal = (absolute.empty() ? path : absolute).lexically_normal();
    return normal.has_filename() || !normal.has_relative_path() ? normal : normal.parent_path();
}

} // namespace Varlo
