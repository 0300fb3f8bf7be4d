// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "extraction/richtext/RichTextScanner.h"

#include "platform/linux/retryInterrupted.h"
#include <algorithm>
#include <cerrno>
#include <limits>
#include <unistd.h>

namespace Varlo {

constexpr size_t chunkSize = size_t { 64 } * 1024;

static bool isLetter(char byte) { return (byte >= 'a' && byte <= 'z') || (byte >= 'A' && byte <= 'Z'); }

static bool isDigit(char byte) { return byte >= '0' && byte <= '9'; }

/// Line breaks only lay out the file, and zeros have no meaning in it.
static bool isFiller(char byte) { return byte == '\r' || byte == '\n' || byte == '\0'; }

static bool isPlainText(char byte) { return byte != '\\' && byte != '{' && byte != '}' && !isFiller(byte); }

static std::optional<int> hexDigit(char byte)
{
    if (isDigit(byte))
        return byte - '0';
    const char lower = static_cast<char>(byte | 0x20);
    return lower >= 'a' && lower <= 'f' ? std::optional(lower - 'a' + 10) : std::nullopt;
}

RichTextScanner::RichTextScanner(const FileDescriptor &file)
    : m_file(file)
    , m_chunk(chunkSize)
{
}

bool RichTextScanner::fill()
{
    if (m_hasFailed)
        return false;
    // Holes are zeros, which have no meaning. A file system that cannot tell answers with an error of its own.
    const off_t data = ::lseek(m_file.get(), m_offset, SEEK_DATA);
    if (data < 0 && errno == ENXIO)
        return false;
    m_offset = std::max<qint64>(m_offset, data);
    const ssize_t count
        = retryInterrupted([this] { return ::pread(m_file.get(), m_chunk.data(), m_chunk.size(), m_offset); });
    m_hasFailed = count < 0;
    if (count <= 0)
        return false;
    m_offset += count;
    m_at = m_chunk.data();
    m_end = m_at + count;
    return true;
}

std::optional<char> RichTextScanner::peek()
{
    if (m_at == m_end && !fill())
        return std::nullopt;
    return *m_at;
}

void RichTextScanner::skip(qint64 byteCount)
{
    const qint64 inChunk = std::min<qint64>(byteCount, m_end - m_at);
    m_at += inChunk;
    m_offset += byteCount - inChunk;
}

bool RichTextScanner::startsWith(std::string_view bytes)
{
    return peek() && std::string_view(m_at, m_end - m_at).starts_with(bytes);
}

RichTextToken RichTextScanner::next()
{
    while (const auto byte = peek()) {
        if (isFiller(*byte)) {
            m_at = std::find_if_not(m_at, m_end, isFiller);
            continue;
        }
        if (isPlainText(*byte))
            return scanText();
        ++m_at;
        if (*byte == '\\')
            return scanControl();
        if (*byte == '{')
            return GroupStart {};
        return GroupEnd {};
    }
    return EndOfFile {};
}

RichTextToken RichTextScanner::scanText()
{
    const char *const begin = m_at;
    m_at = std::find_if_not(m_at, m_end, isPlainText);
    return CodedText { { begin, m_at - begin } };
}

RichTextToken RichTextScanner::scanControl()
{
    const auto byte = peek();
    if (!byte)
        return EndOfFile {};
    if (isLetter(*byte))
        return scanControlWord();
    ++m_at;
    if (*byte == '\'')
        return scanHexByte();
    if (*byte == '\\' || *byte == '{' || *byte == '}') { // may be the second half of a character of two bytes
        m_byte = *byte;
        return CodedText { { &m_byte, 1 } };
    }
    return ControlSymbol { *byte };
}

ControlWord RichTextScanner::scanControlWord()
{
    size_t length = 0;
    for (auto byte = peek(); byte && isLetter(*byte); ++m_at, ++length, byte = peek()) {
        if (length < m_name.size())
            m_name[length] = *byte;
    }
    const std::string_view name(m_name.data(), std::min(length, m_name.size()));
    const auto parameter = scanParameter();
    if (peek() == ' ')
        ++m_at;
    if (name == "bin" && parameter)
        skip(std::max(*parameter, 0));
    return { name, parameter };
}

std::optional<int> RichTextScanner::scanParameter()
{
    auto byte = peek();
    const bool isNegative = byte == '-';
    if (isNegative) {
        ++m_at;
        byte = peek();
    }
    if (!byte || !isDigit(*byte))
        return std::nullopt;
    constexpr qint64 beyond = qint64 { 1 } << 32;
    qint64 value = 0;
    for (; byte && isDigit(*byte); ++m_at, byte = peek())
        value = std::min(value * 10 + (*byte - '0'), beyond);
    using Limits = std::numeric_limits<int>;
    return static_cast<int>(std::clamp<qint64>(isNegative ? -value : value, Limits::min(), Limits::max()));
}

RichTextToken RichTextScanner::scanHexByte()
{
    int value = 0;
    for (int digits = 0; digits < 2; ++digits) {
        const auto byte = peek();
        const auto digit = byte ? hexDigit(*byte) : std::nullopt;
        if (!digit)
            return ControlSymbol { '\'' }; // damaged: what follows is text again
        value = value * 16 + *digit;
        ++m_at;
    }
    m_byte = static_cast<char>(value);
    return CodedText { { &m_byte, 1 } };
}

} // namespace Varlo
