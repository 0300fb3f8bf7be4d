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

/// A paper's head: an organisation's name, its department's below.
bool isLetterhead(const Reading &reading, int start)
{
    const QString &word = reading.words[start].folded;
    return isOrganisation(word) || beginsDepartment(word);
}

/// "Walk across any roof" behind a title whose words all begin with a capital letter.
bool beginsRunningText(const Reading &reading, int start, int index)
{
    const Words &words = reading.words;
    if (!words[index].isCapitalised || index + 2 >= words.count() || index - start < 2)
        return false;
    const bool goesOnSmall = !words[index + 1].isCapitalised && !words[index + 1].hasDigit
        && !words[index + 2].isCapitalised && !words[index + 2].hasDigit && !words[index].hasComma;
    int content = index + 1;
    while (content < words.count() - 1 && isConnector(words[content].folded) && !words[content].isCapitalised)
        ++content;
    const bool isBelowLetterhead
        = isLetterhead(reading, start) && !words[content].isCapitalised && !isSmallWord(words[content]);
    if (!goesOnSmall || (isConnector(words[index + 1].folded) && !isBelowLetterhead))
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

bool isSmallContentWord(const Word &word) { return !word.isCapitalised && !isSmallWord(word); }

/// "Plan voor de tuin Losse aantekeningen na": a heading in sentence case ends where a word with a capital letter goes
/// on in small ones. Behind "van" or "in" the capital belongs to a name.
bool beginsNextSentence(const Reading &reading, int start, int index)
{
    const Words &words = reading.words;
    constexpr int shortestHeading = 4;
    if (!words[index].isCapitalised || words[index].isUpperCase || index + 2 >= words.count()
        || index - start < shortestHeading)
        return false;
    return isSmallContentWord(words[index - 1]) && isSmallContentWord(words[index + 1])
        && !words[index + 2].isCapitalised && !words[index].hasComma && !words[index - 1].hasComma;
}

/// "Evaluatie van de proef Eindrapport Versie 2": in languages that write a heading's words small, a type's word with a
/// capital letter begins the line below.
bool isTypeBelowTitle(const Reading &reading, int start, int index)
{
    const TypeMark *type = reading.typeAt(index);
    if (reading.language == FilenameLanguage::English || !type || type->strength == TypeStrength::Hint)
        return false;
    const Words &words = reading.words;
    const bool isInHeading = words[index].isCapitalised && index - start > 1 && !isConnector(words[index - 1].folded);
    const bool hasSmallWords = std::any_of(&words[start], &words[index], isSmallContentWord);
    return isInHeading && hasSmallWords;
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
    // "Minutes of the meeting held in the hall": where and when are not what it is about.
    static const QStringList participles { u"held"_s, u"gehouden"_s, u"celebrada"_s, u"celebrado"_s };
    if (index - start > 2 && participles.contains(word.folded))
        return true;
    const LabelMark *label = reading.labelAt(index);
    const bool isLabel = label && (word.isCapitalised || words[label->end - 1].hasColon) && !isConnector(word.folded)
        && label->label != Label::Parties;
    if (isLabel || (word.hasColon && index - start > 1))
        return true;
    if (leavesCapitals(reading, start, index) || entersCapitals(reading, index) || isByline(reading, index))
        return true;
    const bool isOpener = isSentenceOpener(word.folded) && word.isCapitalised && index - start > 1
        && index + 1 < words.count() && !words[index + 1].hasDigit
        && (!words[index + 1].isCapitalised || isWeekday(words[index + 1].folded));
    if (isLetterhead(reading, start) && beginsDepartment(word.folded) && word.isCapitalised)
        return true;
    if (beginsNextSentence(reading, start, index) || isTypeBelowTitle(reading, start, index))
        return true;
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

/// A Dutch or Spanish heading is in lower case but for its first word: a capital behind a name begins it. An English
/// one begins with the type's word when "of" follows: "Wexcombe Society Minutes of the Annual Meeting".
bool beginsHeadingBehindName(const Reading &reading, const TypeMark &mark)
{
    const Words &words = reading.words;
    static const QStringList openings { u"of"_s, u"on"_s };
    const bool endsInOf = openings.contains(words[mark.end - 1].folded);
    const bool goesOn = endsInOf || (mark.end < words.count() && openings.contains(words[mark.end].folded));
    if (!words[mark.start].isCapitalised || (reading.language == FilenameLanguage::English && !goesOn))
        return false;
    for (int index = 0; index < mark.start; ++index) {
        if (!words[index].isCapitalised && !isConnector(words[index].folded))
            return false;
    }
    return mark.start > 1 && !isConnector(words[mark.start - 1].folded);
}

/// Where the piece of the document begins in which this word stands, or behind which it stands as a line of its own.
int startOfPiece(const Reading &reading, const TypeMark &mark)
{
    if (beginsHeadingBehindName(reading, mark))
        return mark.start;
    int start = 0;
    while (start < mark.start) {
        const int end = endOfTitle(reading, start);
        const bool isTitleAboveType = end == mark.start && isTypeBelowTitle(reading, start, end);
        if (end > mark.start || isTitleAboveType)
            return start;
        start = end;
    }
    return mark.start;
}

/// A newspaper's name, the section and the day stand above its headline.
int endOfMasthead(const Reading &reading)
{
    const Words &words = reading.words;
    for (const FoundDate &date : reading.dates) {
        constexpr int latest = 15;
        if (date.start == 0 || date.start > latest)
            break;
        const Word &weekday = words[date.start - 1];
        const bool isDateline = isWeekday(weekday.folded) && weekday.isCapitalised && date.start > 1;
        bool isInSentence = false;
        for (int index = 0; index < date.start; ++index)
            isInSentence = isInSentence || words[index].endsSentence || words[index].hasColon;
        if (isDateline && !isInSentence)
            return date.end;
    }
    return 0;
}

/// The words at the top, behind labels and figures.
std::optional<int> firstWords(const Reading &reading)
{
    const Words &words = reading.words;
    for (int index = endOfMasthead(reading); index < words.count(); ++index) {
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
        QString title = readTitle(reading, startOfPiece(reading, *mark));
        const QString person = mark->type == DocumentType::CurriculumVitae ? nameOfPerson(reading) : QString();
        if (!person.isEmpty() && !title.contains(person))
            title += u' ' + person;
        return title;
    }
    const auto start = firstWords(reading);
    return start ? std::optional(readTitle(reading, *start)) : std::nullopt;
}

} // namespace Varlo
