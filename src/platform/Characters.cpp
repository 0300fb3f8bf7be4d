// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/Characters.h"

#include <algorithm>
#include <unicode/ubrk.h>
#include <unicode/uchar.h>
#include <unicode/utf16.h>

namespace Varlo {

// ICU rather than Qt's QTextBoundaryFinder: its rules are those of the Unicode version the system ships.
class CharacterBorders {
public:
    explicit CharacterBorders(QStringView text)
    {
        UErrorCode status = U_ZERO_ERROR;
        m_iterator = ubrk_open(UBRK_CHARACTER, "", reinterpret_cast<const UChar *>(text.utf16()),
            static_cast<int32_t>(text.size()), &status);
        if (U_FAILURE(status))
            qFatal("ICU has no character boundary rules: %s", u_errorName(status));
    }
    ~CharacterBorders() { ubrk_close(m_iterator); }
    CharacterBorders(const CharacterBorders &) = delete;
    CharacterBorders &operator=(const CharacterBorders &) = delete;

    /// Where the next character ends, in UTF-16 units; -1 behind the last one.
    qsizetype next() { return ubrk_next(m_iterator); }

private:
    UBreakIterator *m_iterator = nullptr;
};

/// Whether a unit is a character of its own beside any other such unit, as nearly all are in most languages.
static bool standsAlone(QChar unit)
{
    if (unit.unicode() < 0x80)
        return unit != u'\r'; // CR LF is one character
    return !unit.isSurrogate() && u_getIntPropertyValue(unit.unicode(), UCHAR_GRAPHEME_CLUSTER_BREAK) == U_GCB_OTHER;
}

qsizetype countCharacters(QStringView text, qsizetype limit)
{
    // Opening ICU's iterator takes as long as a hundred characters, and many texts come in short pieces. Behind the
    // last unit looked at, accents may follow that belong to it.
    const QStringView front = text.first(std::min(text.size(), limit));
    if (std::all_of(front.begin(), front.end(), standsAlone))
        return front.size();
    CharacterBorders borders(text);
    qsizetype count = 0;
    while (count < limit && borders.next() >= 0)
        ++count;
    return count;
}

QStringView firstCharacters(QStringView text, qsizetype count)
{
    // A character takes at least one unit, so a text this short needs no search.
    if (text.size() <= count)
        return text;
    // One more, as an accent there would belong to the last one.
    const QStringView front = text.first(std::max(count, qsizetype { 0 }) + 1);
    if (std::all_of(front.begin(), front.end(), standsAlone))
        return front.chopped(1);
    CharacterBorders borders(text);
    qsizetype end = 0;
    for (qsizetype taken = 0; taken < count; ++taken) {
        const qsizetype next = borders.next();
        if (next < 0)
            return text;
        end = next;
    }
    return text.first(end);
}

static qsizetype utf8Length(QStringView text)
{
    qsizetype length = 0;
    for (const QChar unit : text) {
        if (unit.unicode() < 0x80)
            length += 1;
        else if (unit.unicode() < 0x800 || unit.isSurrogate()) // each half of a pair stands for two of its four bytes
            length += 2;
        else
            length += 3;
    }
    return length;
}

QStringView firstCharacters(QStringView text, qsizetype count, qsizetype byteLimit)
{
    const QStringView candidate = firstCharacters(text, count);
    if (candidate.size() * 3 <= byteLimit || utf8Length(candidate) <= byteLimit)
        return candidate;
    CharacterBorders borders(candidate);
    qsizetype end = 0;
    qsizetype bytes = 0;
    for (qsizetype next = borders.next(); next >= 0; next = borders.next()) {
        bytes += utf8Length(candidate.sliced(end, next - end));
        if (bytes > byteLimit)
            break;
        end = next;
    }
    return candidate.first(end);
}

static int codePointWidth(UChar32 codePoint)
{
    const int category = u_charType(codePoint);
    if (category == U_NON_SPACING_MARK || category == U_ENCLOSING_MARK || category == U_FORMAT_CHAR)
        return 0;
    const int eastAsianWidth = u_getIntPropertyValue(codePoint, UCHAR_EAST_ASIAN_WIDTH);
    const bool isWide = eastAsianWidth == U_EA_WIDE || eastAsianWidth == U_EA_FULLWIDTH;
    return isWide || u_hasBinaryProperty(codePoint, UCHAR_EMOJI_PRESENTATION) ? 2 : 1;
}

static int characterWidth(QStringView character)
{
    constexpr UChar32 emojiVariationSelector = 0xFE0F;
    int width = 0;
    for (qsizetype at = 0; at < character.size();) {
        UChar32 codePoint = 0;
        U16_NEXT(character.utf16(), at, character.size(), codePoint);
        width = std::max(width, codePoint == emojiVariationSelector ? 2 : codePointWidth(codePoint));
    }
    return width;
}

int terminalWidth(QStringView text)
{
    CharacterBorders borders(text);
    int width = 0;
    qsizetype start = 0;
    for (qsizetype end = borders.next(); end >= 0; end = borders.next()) {
        width += characterWidth(text.sliced(start, end - start));
        start = end;
    }
    return width;
}

} // namespace Varlo
