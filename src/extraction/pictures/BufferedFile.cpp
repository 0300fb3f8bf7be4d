// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "extraction/pictures/BufferedFile.h"

#include "platform/linux/retryInterrupted.h"
#include <algorithm>
#include <sys/stat.h>
#include <unistd.h>

namespace Varlo {

static constexpr qsizetype pieceSize = 64 * 1024;

qint64 BufferedFile::size() const
{
    struct stat status { };
    return ::fstat(m_file.get(), &status) == 0 ? status.st_size : 0;
}

void BufferedFile::seek(qint64 position)
{
    if (position >= m_bufferStart && position <= m_bufferStart + m_buffer.size()) {
        m_used = position - m_bufferStart;
        return;
    }
    m_bufferStart = position;
    m_used = 0;
    m_buffer.truncate(0);
}

void BufferedFile::fill()
{
    m_bufferStart += m_buffer.size();
    m_used = 0;
    m_buffer.resize(pieceSize);
    const ssize_t count
        = retryInterrupted([&] { return ::pread(m_file.get(), m_buffer.data(), pieceSize, m_bufferStart); });
    m_buffer.truncate(std::max<ssize_t>(count, 0));
}

std::span<const uchar> BufferedFile::next()
{
    if (m_used == m_buffer.size())
        fill();
    const auto rest = std::span(reinterpret_cast<const uchar *>(m_buffer.constData()), m_buffer.size());
    return rest.subspan(std::exchange(m_used, m_buffer.size()));
}

bool BufferedFile::read(uchar *target, qsizetype count)
{
    while (count > 0) {
        if (m_used == m_buffer.size())
            fill();
        const qsizetype part = std::min(count, m_buffer.size() - m_used);
        if (part == 0)
            return false;
        target = std::copy_n(reinterpret_cast<const uchar *>(m_buffer.constData()) + m_used, part, target);
        m_used += part;
        count -= part;
    }
    return true;
}

} // namespace Varlo
