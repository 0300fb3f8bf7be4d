// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/FileDescriptor.h"
#include <optional>
#include <span>

namespace Varlo {

/// A file's bytes in memory, read as they are touched. When the file shrinks meanwhile, touching what it lost ends the
/// process (SIGBUS): for a process alone that may die of its file.
class MappedFile {
public:
    /// Nothing for an empty file, and for one that cannot be mapped.
    [[nodiscard]] static std::optional<MappedFile> map(const FileDescriptor &file);
    MappedFile(MappedFile &&other) noexcept;
    MappedFile &operator=(MappedFile &&) = delete;
    ~MappedFile();

    [[nodiscard]] std::span<const char> bytes() const { return m_bytes; }

private:
    explicit MappedFile(std::span<const char> bytes)
        : m_bytes(bytes)
    {
    }

    std::span<const char> m_bytes;
};

} // namespace Varlo
