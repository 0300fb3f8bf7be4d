// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/FileDescriptor.h"
#include <QByteArrayView>
#include <utility>

namespace Varlo {

/// A file's bytes as memory, from its start, whatever the descriptor's offset. Where the file shrinks meanwhile, what
/// is read behind its new end raises SIGBUS: for processes that may die with their file alone.
class MappedFile {
public:
    /// Empty where the file is, or cannot be mapped.
    explicit MappedFile(const FileDescriptor &file);
    MappedFile(MappedFile &&other) noexcept
        : m_bytes(std::exchange(other.m_bytes, {}))
    {
    }
    MappedFile &operator=(MappedFile &&other) noexcept
    {
        std::swap(m_bytes, other.m_bytes);
        return *this;
    }
    MappedFile(const MappedFile &) = delete;
    MappedFile &operator=(const MappedFile &) = delete;
    ~MappedFile();

    [[nodiscard]] QByteArrayView bytes() const { return m_bytes; }

private:
    QByteArrayView m_bytes;
};

} // namespace Varlo
