// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "extraction/TextNormalizer.h"

#include "extraction/normalizeExtractedText.h"
#include "platform/Characters.h"
#include <algorithm>
#include <simdjson.h>

namespace Varlo {

constexpr qsizetype pieceSize = 8192; // bytes decoded at a time

// Where the next character ends is decided by at most one code point behind it, so text up to the limits and a little
// beyond tells all. A UTF-16 unit stands for at least one byte of UTF-8.
constexpr qsizetype enoughUnits = mostTextBytes + 2;
// In collapsed ASCII text (no line breaks) every unit is a character, the last one perhaps with accents to come.
constexpr qsizetype enoughAsciiUnits = mostTextCharacters + 1;

static qsizetype sequenceLength(char lead)
{
    const auto byte = static_cast<unsigned char>(lead);
    if (byte < 0xC0 || byte >= 0xF8) // ASCII, or no lead byte at all: nothing to wait for
        return 1;
    return byte < 0xE0 ? 2 : byte < 0xF0 ? 3 : 4;
}

/// How many bytes at the end begin a sequence that goes on behind them.
static qsizetype splitTail(QByteArrayView bytes)
{
    const qsizetype furthest = std::min<qsizetype>(3, bytes.size());
    for (qsizetype length = 1; length <= furthest; ++length) {
        const char byte = bytes[bytes.size() - length];
        const bool isContinuation = (byte & 0xC0) == 0x80;
        if (!isContinuation)
            return sequenceLength(byte) > length ? length : 0;
    }
    return 0;
}

TextNormalizer::TextNormalizer() { m_decoded.resize(m_decoder.requiredSpace(pieceSize)); }

bool TextNormalizer::append(QByteArrayView bytes)
{
    if (m_splitSize > 0) {
        const qsizetype length = sequenceLength(m_split[0]);
        const qsizetype taken = std::min(length - m_splitSize, bytes.size());
        std::copy_n(bytes.begin(), taken, m_split.begin() + m_splitSize);
        m_splitSize += taken;
        bytes = bytes.sliced(taken);
        if (m_splitSize < length)
            return m_isUtf8;
        m_splitSize = 0;
        m_isUtf8 = m_isUtf8 && appendWhole({ m_split.data(), length });
    }
    const qsizetype tail = splitTail(bytes);
    m_isUtf8 = m_isUtf8 && appendWhole(bytes.chopped(tail));
    std::copy_n(bytes.end() - tail, tail, m_split.begin());
    m_splitSize = tail;
    return m_isUtf8;
}

bool TextNormalizer::appendWhole(QByteArrayView sequences)
{
    if (!simdjson::validate_utf8(sequences.data(), static_cast<size_t>(sequences.size())))
        return false;
    while (!m_hasEnough && !sequences.isEmpty()) {
        const qsizetype size = std::min(pieceSize, sequences.size());
        keep(sequences.first(size));
        sequences = sequences.sliced(size);
    }
    return true;
}

void TextNormalizer::keep(QByteArrayView utf8)
{
    QChar *const begin = m_decoded.data();
    const QChar *const end = m_decoder.appendToBuffer(begin, utf8);
    keepCollapsed({ begin, end });
    const bool isAscii = m_allUnits < 0x80;
    m_hasEnough = isAscii ? m_line.size() >= enoughAsciiUnits : hasEnoughCharacters();
}

bool TextNormalizer::hasEnoughCharacters()
{
    if (m_line.size() >= enoughUnits)
        return true;
    if (m_line.size() < m_nextCount)
        return false;
    m_nextCount = 2 * m_line.size(); // counted seldom enough to cost less than the decoding
    return countCharacters(m_line, mostTextCharacters + 1) > mostTextCharacters;
}

void TextNormalizer::keepCollapsed(QStringView text)
{
    const auto isSpace = [](QChar unit) { return unit.isSpace(); };
    const auto *at = text.begin();
    while (at != text.end()) {
        const auto *const word = std::find_if_not(at, text.end(), isSpace);
        m_spaceIsDue = m_spaceIsDue || word != at;
        if (word == text.end())
            return;
        const auto *const wordEnd = std::find_if(word, text.end(), isSpace);
        if (m_spaceIsDue && !m_line.isEmpty())
            m_line += u' ';
        m_spaceIsDue = false;
        m_line.append(word, wordEnd - word);
        std::for_each(word, wordEnd, [this](QChar unit) { m_allUnits |= unit.unicode(); });
        at = wordEnd;
    }
}

Extraction TextNormalizer::finish() const
{
    if (!m_isUtf8 || m_splitSize > 0)
        return NoTextFound {};
    return normalizeExtractedText(m_line);
}

} // namespace Varlo
