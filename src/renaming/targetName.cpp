// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "renaming/targetName.h"

#include "platform/Characters.h"
#include "platform/pathExtension.h"
#include "suggestion/sanitizeFilename.h"
#include <algorithm>
#include <QList>
#include <unicode/uchar.h>
#include <vector>

namespace Varlo {

using namespace Qt::StringLiterals;

static constexpr char32_t zeroWidthNonJoiner = 0x200C;
static constexpr char32_t zeroWidthJoiner = 0x200D;

static UChar32 icu(char32_t codePoint) { return static_cast<UChar32>(codePoint); }

static bool isJoiner(char32_t codePoint) { return codePoint == zeroWidthJoiner || codePoint == zeroWidthNonJoiner; }

static bool isVirama(char32_t codePoint) { return u_getCombiningClass(icu(codePoint)) == 9; }

static bool hasJoiningType(char32_t codePoint, std::initializer_list<int> types)
{
    const int type = u_getIntPropertyValue(icu(codePoint), UCHAR_JOINING_TYPE);
    return std::find(types.begin(), types.end(), type) != types.end();
}

static bool isPictograph(char32_t codePoint)
{
    return u_hasBinaryProperty(icu(codePoint), UCHAR_EXTENDED_PICTOGRAPHIC);
}

/// Where a joiner shapes what is seen: inside an emoji, behind a virama, and between letters that join (the contexts of
/// Unicode's UAX #31, section 2.3). Anywhere else two names that differ only by it look alike.
static bool isShapingJoiner(const std::u32string &text, std::size_t at)
{
    if (at == 0)
        return false;
    const char32_t before = text[at - 1];
    if (isVirama(before))
        return true;
    if (at + 1 == text.size())
        return false;
    const char32_t after = text[at + 1];
    constexpr char32_t emojiVariationSelector = 0xFE0F;
    const bool followsEmoji = isPictograph(before) || before == emojiVariationSelector
        || u_hasBinaryProperty(icu(before), UCHAR_EMOJI_MODIFIER);
    if (followsEmoji && isPictograph(after))
        return true;
    return hasJoiningType(before, { U_JT_DUAL_JOINING, U_JT_LEFT_JOINING, U_JT_JOIN_CAUSING, U_JT_TRANSPARENT })
        && hasJoiningType(after, { U_JT_DUAL_JOINING, U_JT_RIGHT_JOINING });
}

static bool isDeceptive(const std::u32string &text, std::size_t at)
{
    const char32_t codePoint = text[at];
    if (isJoiner(codePoint))
        return !isShapingJoiner(text, at);
    const int category = u_charType(icu(codePoint));
    if (category == U_CONTROL_CHAR || U_IS_UNICODE_NONCHAR(icu(codePoint)))
        return true;
    const bool isTag = codePoint >= 0xE0000 && codePoint <= 0xE007F;
    // Some format characters are seen, such as the Arabic number sign; those stay.
    const bool isInvisible = category == U_FORMAT_CHAR
        && (u_hasBinaryProperty(icu(codePoint), UCHAR_DEFAULT_IGNORABLE_CODE_POINT)
            || u_hasBinaryProperty(icu(codePoint), UCHAR_BIDI_CONTROL));
    return isTag || isInvisible;
}

static bool isPlain(const QString &name)
{
    return std::all_of(name.begin(), name.end(), [](QChar unit) { return unit >= u' ' && unit <= u'~'; });
}

template <typename IsKept> static QString filtered(const QString &name, IsKept isKept)
{
    // toUcs4() turns a lone surrogate into U+FFFD.
    const QList<uint> codePoints = name.toUcs4();
    const std::u32string text(codePoints.begin(), codePoints.end());
    std::u32string kept;
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (isKept(text, at))
            kept.push_back(text[at]);
    }
    return QString::fromStdU32String(kept);
}

static QString withoutDeceptiveCharacters(const QString &name)
{
    if (isPlain(name))
        return name; // sanitizeFilename() has made its white space simple
    return filtered(name, [](const auto &text, std::size_t at) { return !isDeceptive(text, at); }).simplified();
}

static QString withoutLeadingDots(const QString &name)
{
    const auto first = std::find_if(
        name.begin(), name.end(), [](QChar character) { return character != u'.' && character != u' '; });
    return QString(first, name.end() - first);
}

static bool isDotsOnly(const QString &name)
{
    return std::all_of(name.begin(), name.end(), [](QChar character) { return character == u'.'; });
}

static bool isAscii(const std::string &text)
{
    return std::none_of(text.begin(), text.end(), [](char byte) { return (byte & 0x80) != 0; });
}

static bool areCanonicallyEquivalent(const std::string &left, const std::string &right)
{
    if (left == right)
        return true;
    if (isAscii(left) && isAscii(right))
        return false;
    const QString leftText = QString::fromStdString(left);
    const QString rightText = QString::fromStdString(right);
    // Bytes that are not UTF-8 would read as U+FFFD, whichever they are.
    if (leftText.toStdString() != left || rightText.toStdString() != right)
        return false;
    return leftText.normalized(QString::NormalizationForm_C) == rightText.normalized(QString::NormalizationForm_C);
}

static bool isContinuationByte(char byte) { return (byte & 0xC0) == 0x80; }

/// As much from the front as fits, without a part of a character, and without a space left at the end.
static std::string fitting(const std::string &base, std::size_t byteLimit)
{
    if (base.size() <= byteLimit)
        return base;
    const QString text = QString::fromStdString(base);
    std::string cut;
    if (text.toStdString() == base)
        cut = firstCharacters(text, text.size(), static_cast<qsizetype>(byteLimit)).toUtf8().toStdString();
    if (cut.empty()) { // not UTF-8, or one character with more accents than fit
        std::size_t end = byteLimit;
        while (end > 0 && isContinuationByte(base[end]))
            --end;
        cut = base.substr(0, end);
    }
    while (!cut.empty() && cut.back() == ' ')
        cut.pop_back();
    return cut;
}

std::string TargetName::candidate(int number, std::size_t byteLimit) const
{
    const std::string ending = (number == 1 ? std::string() : ' ' + std::to_string(number)) + extension;
    if (ending.size() >= byteLimit)
        return {};
    const std::string start = fitting(base, byteLimit - ending.size());
    return start.empty() ? std::string() : start + ending;
}

QString editableName(const QString &name)
{
    QString shown = name;
    if (!isPlain(name)) {
        shown = filtered(
            name, [](const auto &text, std::size_t at) { return isJoiner(text[at]) || !isDeceptive(text, at); });
        for (const QChar::SpecialCharacter separator : { QChar::LineSeparator, QChar::ParagraphSeparator })
            shown.replace(separator, QChar::Space);
    }
    const std::string bytes = shown.toStdString();
    return bytes.size() <= longestName ? shown : QString::fromStdString(fitting(bytes, longestName));
}

static std::string extensionWithDot(std::string_view name)
{
    const std::string extension = pathExtension(name);
    return extension.empty() ? extension : '.' + extension;
}

Result<TargetName, RenameError> targetName(std::string_view currentName, const QString &newName)
{
    QString clean = withoutDeceptiveCharacters(sanitizeFilename(newName));
    if (!currentName.starts_with('.'))
        clean = withoutLeadingDots(clean);
    if (isDotsOnly(clean))
        return tl::unexpected(RenameError::InvalidName);
    TargetName target { clean.toStdString(), extensionWithDot(currentName), false };
    if (target.extension.size() >= longestName)
        return tl::unexpected(RenameError::InvalidName);
    const std::string base = fitting(target.base, longestName - target.extension.size());
    if (base.empty())
        return tl::unexpected(RenameError::InvalidName);
    target.isCurrentName = areCanonicallyEquivalent(base, baseName(currentName));
    return target;
}

TargetName formerName(std::string_view currentName, const std::string &formerBase)
{
    return { formerBase, extensionWithDot(currentName), formerBase == baseName(currentName) };
}

} // namespace Varlo
