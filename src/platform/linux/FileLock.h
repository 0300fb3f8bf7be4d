// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/FileDescriptor.h"
#include "platform/Result.h"
#include "platform/SystemError.h"
#include <chrono>
#include <filesystem>

namespace Varlo {

/// Keeps every other process out for as long as this object lives. The kernel lets go when the process dies, so a lock
/// is never left behind; its file is, empty.
class FileLock {
public:
    static constexpr std::chrono::seconds defaultLimit { 5 };

    /// Locks `path`, a file of nothing else, and makes it where it is missing. Error EAGAIN when somebody else held it
    /// throughout `limit`.
    [[nodiscard]] static Result<FileLock, SystemError> acquire(
        const std::filesystem::path &path, std::chrono::milliseconds limit = defaultLimit);

private:
    explicit FileLock(FileDescriptor file)
        : m_file(std::move(file))
    {
    }

    FileDescriptor m_file;
};

} // namespace Varlo
