// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>

namespace Varlo {

/// What a file system says of a file beyond its kind and size.
struct FileFlags {
    virtual ~FileFlags() = default;
    /// True when the file's content is only in the cloud and would have to be downloaded by another program.
    [[nodiscard]] virtual bool isOnlineOnly(const std::filesystem::path &path) const = 0;
};

} // namespace Varlo
