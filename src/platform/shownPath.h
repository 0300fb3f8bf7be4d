// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <QString>

namespace Varlo {

/// A path's text for showing: bytes that are not UTF-8 become U+FFFD, so the file cannot be opened by it.
[[nodiscard]] inline QString shownPath(const std::filesystem::path &path)
{
    return QString::fromUtf8(path.native().data(), static_cast<qsizetype>(path.native().size()));
}

/// The path without "." and "..", and without a "/" at its end; absolute, and with its symbolic links left in.
[[nodiscard]] inline std::filesystem::path standardizedPath(const std::filesystem::path &path)
{
    std::error_code ignored; // only an unreadable current folder can fail here, and then the path stays relative
    const std::filesystem::path absolute = path.is_absolute() ? path : std::filesystem::absolute(path, ignored);
    const std::filesystem::path normal = (absolute.empty() ? path : absolute).lexically_normal();
    return normal.has_filename() || !normal.has_relative_path() ? normal : normal.parent_path();
}

} // namespace Varlo
