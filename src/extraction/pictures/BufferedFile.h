// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/FileDescriptor.h"
#include <QByteArray>
#include <span>

namespace Varlo {

/// Reads a file forwards in large pieces, and from wherever it is told, without touching the descriptor's own offset.
/// Not by mapping it: the pages of a mapped picture would all count as memory of the process.
class BufferedFile {
public:
    explicit BufferedFile(const FileDescriptor &file)
        : m_file(file)
    {
    }
    [[nodiscard]] qint64 size() const;
    [[nodiscard]] qint64 position() const { return m_bufferStart + m_used; }
    void seek(qint64 position);
    /// The next bytes, at least one and as many as are at hand. They are valid until the next call. Empty at the end
    /// of the file and where it cannot be read.
    [[nodiscard]] std::span<const uchar> next();
    /// Copies `count` bytes. False where the file has no more so many; what there was is then read and lost.
    [[nodiscard]] bool read(uchar *target, qsizetype count);

private:
    void fill();

    const FileDescriptor &m_file;
    QByteArray m_buffer;
    qint64 m_bufferStart = 0;
    qsizetype m_used = 0;
};

} // namespace Varlo
