// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "suggestion/builtin/findTitle.h"

#include "suggestion/builtin/readName.h"
#include <algorithm>

namespace Varlo {

using namespace Qt::StringLiterals;

namespace {

constexpr int longestTitle = 14; // words

bool isSmallWord(const Word &word)
{
    return isConnector(word.folded) || isSentenceOpener(word.folded) || word.hasDigit;
}

/// "Walk across any roof" behind a title whose words all begin with a capital letter.
bool beginsRunningText(const Reading &reading, int start, int index)
{
    const Words &words = reading.words;
    if (!words[index].isCapitalised || index + 2 >= words.count() || index - start < 2)
        return false;
    const bool goesOnSmall = !words[index + 1].isCapitalised && !words[index + 1].hasDigit
        && !words[index + 2].isCapitalised && !words[index + 2].hasDigit && !words[index].hasComma;
    if (!goesOnSmall || isConnector(words[index + 1].folded))
        return false;
    for (int at = start; at < index; ++at) {
        if (!words[at].isCapitalised && !isSmallWord(words[at]))
            return false;
    }
    return true;
}

bool leavesCapitals(const Reading &reading, int start, int index)
{
    const Words &words = reading.words;
    const Word &word = words[index];
    if (!words[start].isUpperCase || words[start].folded.size() < 3 || word.isUpperCase || word.hasDigit)
        return false;
    bool hasLongWord = false;
    for (int at = start; at < index; ++at) {
        const bool isUpper = words[at].isUpperCase || words[at].hasDigit || words[at].folded.size() == 1;
        if (!isUpper)
            return false;
        hasLongWord = hasLongWord || words[at].folded.size() > 4;
    }
    return hasLongWord;
}

bool entersCapitals(const Reading &reading, int index)
{
    const Words &words = reading.words;
    constexpr qsizetype longestAcronym = 4;
    return words[index].isUpperCase && words[index].folded.size() > longestAcronym && !words[index - 1].isUpperCase
        && !words[index - 1].hasDigit;
}

/// "Title By Lena Marsh"
bool isByline(const Reading &reading, int index)
{
    static const QStringList bylines { u"by"_s, u"door"_s, u"por"_s };
    const Words &words = reading.words;
    return index + 2 < words.count() && words[index].isCapitalised && bylines.contains(words[index].folded)
        && words[index + 1].isCapitalised && words[index + 2].isCapitalised;
}

/// Whether another piece of the document begins at this word of a heading that began at `start`.
bool isBorder(const Reading &reading, int start, int index)
{
    const Words &words = reading.words;
    const Word &word = words[index];
    const Word &before = words[index - 1];
    if (word.isNewPart || before.endsSentence || reading.isDateAt(index) || reading.isAmountAt(index)
        || reading.isIdentifierAt(index))
        return true;
    const LabelMark *label = reading.labelAt(index);
    const bool isLabel = label && (word.isCapitalised || words[label->end - 1].hasColon) && !isConnector(word.folded)
        && label->label != Label::Parties;
    if (isLabel || (word.hasColon && index - start > 1))
        return true;
    if (leavesCapitals(reading, start, index) || entersCapitals(reading, index) || isByline(reading, index))
        return true;
    const bool isOpener = isSentenceOpener(word.folded) && word.isCapitalised && index - start > 1
        && index + 1 < words.count() && !words[index + 1].isCapitalised && !words[index + 1].hasDigit;
    return isOpener || beginsRunningText(reading, start, index);
}

int endOfTitle(const Reading &reading, int start)
{
    const int limit = std::min(reading.words.count(), start + longestTitle);
    int end = start + 1;
    while (end < limit && !isBorder(reading, start, end))
        ++end;
    return end;
}

QString readTitle(const Reading &reading, int start)
{
    int end = endOfTitle(reading, start);
    const bool isCut = end == start + longestTitle;
    while (isCut && end > start + 1 && isConnector(reading.words[end - 1].folded))
        --end;
    return reading.words.joined(start, end);
}

/// A Dutch or Spanish heading is in lower case but for its first word: a capital behind a name begins it.
bool beginsHeadingBehindName(const Reading &reading, int mark)
{
    if (reading.language == FilenameLanguage::English || !reading.words[mark].isCapitalised)
        return false;
    for (int index = 0; index < mark; ++index) {
        if (!reading.words[index].isCapitalised && !isConnector(reading.words[index].folded))
            return false;
    }
    return mark > 1;
}

/// Where the piece of the document begins in which this word stands.
int startOfPiece(const Reading &reading, int mark)
{
    if (beginsHeadingBehindName(reading, mark))
        return mark;
    int start = 0;
    while (start < mark) {
        const int end = endOfTitle(reading, start);
        if (end > mark)
            return start;
        start = end;
    }
    return mark;
}

/// The words at the top, behind labels and figures.
std::optional<int> firstWords(const Reading &reading)
{
    const Words &words = reading.words;
    for (int index = 0; index < words.count(); ++index) {
        const Word &word = words[index];
        const bool isText = !word.hasDigit && !reading.isIdentifierAt(index) && word.folded.size() > 1;
        const bool isFollowedByText = index + 1 < words.count() && !words[index + 1].hasDigit;
        if (isText && !word.hasColon && (isFollowedByText || word.folded.size() > 3))
            return index;
    }
    return {};
}

QString nameOfPerson(const Reading &reading)
{
    for (int index = 0; index + 1 < reading.words.count(); ++index) {
        static const QStringList labels { u"name"_s, u"naam"_s, u"nombre"_s, u"full name"_s };
        if (labels.contains(reading.words[index].folded) && reading.words[index].hasColon) {
            const auto name = readName(reading, index + 1);
            return name ? name->text : QString();
        }
    }
    return {};
}

} // namespace

std::optional<QString> findSubject(const Reading &reading)
{
    if (reading.source.subject)
        return reading.source.subject;
    for (const LabelMark &mark : reading.labels) {
        if (mark.label == Label::Subject && mark.end < reading.words.count())
            return readTitle(reading, mark.end);
    }
    return {};
}

std::optional<QString> findTitle(const Reading &reading)
{
    if (reading.source.subject)
        return reading.source.subject;
    if (reading.source.title)
        return reading.source.title;
    if (const auto subject = findSubject(reading))
        return subject;
    constexpr int latestHeading = 45;
    const auto &mark = reading.type ? reading.type->mark : std::nullopt;
    if (mark && mark->start < latestHeading && reading.words[mark->start].isCapitalised) {
        QString title = readTitle(reading, startOfPiece(reading, mark->start));
        const QString person = mark->type == DocumentType::CurriculumVitae ? nameOfPerson(reading) : QString();
        if (!person.isEmpty() && !title.contains(person))
            title += u' ' + person;
        return title;
    }
    const auto start = firstWords(reading);
    return start ? std::optional(readTitle(reading, *start)) : std::nullopt;
}

} // namespace Varlo
