// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/visibleText.h"

#include "platform/Characters.h"
#include <unicode/uchar.h>
#include <unicode/utf16.h>
#include <unicode/utf8.h>

namespace Varlo {

using namespace Qt::StringLiterals;

static void appendEscaped(QString &out, UChar32 codePoint)
{
    switch (codePoint) {
    case '\n':
        out += u"\\n"_s;
        return;
    case '\t':
        out += u"\\t"_s;
        return;
    case '\r':
        out += u"\\r"_s;
        return;
    default:
        break;
    }
    if (codePoint < 0x80)
        out += u"\\%1"_s.arg(codePoint, 3, 8, QLatin1Char('0'));
    else if (codePoint <= 0xFFFF)
        out += u"\\u%1"_s.arg(codePoint, 4, 16, QLatin1Char('0'));
    else
        out += u"\\U%1"_s.arg(codePoint, 8, 16, QLatin1Char('0'));
}

static bool isSafe(UChar32 codePoint)
{
    constexpr UChar32 zeroWidthNonJoiner = 0x200C;
    constexpr UChar32 zeroWidthJoiner = 0x200D;
    const bool breaksLine = u_charType(codePoint) == U_LINE_SEPARATOR || u_charType(codePoint) == U_PARAGRAPH_SEPARATOR;
    return codePoint == zeroWidthNonJoiner || codePoint == zeroWidthJoiner || (u_isprint(codePoint) && !breaksLine);
}

static void append(QString &out, UChar32 codePoint)
{
    if (isSafe(codePoint))
        out += QStringView(QChar::fromUcs4(static_cast<char32_t>(codePoint)));
    else
        appendEscaped(out, codePoint);
}

QString visibleText(QStringView text)
{
    QString out;
    out.reserve(text.size());
    for (qsizetype at = 0; at < text.size();) {
        UChar32 codePoint = 0;
        U16_NEXT(text.utf16(), at, text.size(), codePoint);
        append(out, codePoint);
    }
    return out;
}

QString visibleText(const std::filesystem::path &path)
{
    const std::string &bytes = path.native();
    const auto size = static_cast<int32_t>(bytes.size());
    QString out;
    for (int32_t at = 0; at < size;) {
        const int32_t start = at;
        UChar32 codePoint = 0;
        U8_NEXT(reinterpret_cast<const uint8_t *>(bytes.data()), at, size, codePoint);
        if (codePoint >= 0) {
            append(out, codePoint);
            continue;
        }
        for (int32_t invalid = start; invalid < at; ++invalid)
            out += u"\\%1"_s.arg(
                static_cast<unsigned char>(bytes[static_cast<std::size_t>(invalid)]), 3, 8, QLatin1Char('0'));
    }
    return out;
}

QString visibleMessage(const QString &message)
{
    constexpr qsizetype longest = 500;
    constexpr qsizetype mostBytes = 4096; // a letter may carry thousands of accents, which take long to lay out
    const QStringView start = firstCharacters(message, longest, mostBytes);
    return start.size() < message.size() ? visibleText(start) + u'…' : visibleText(start);
}

} // namespace Varlo
