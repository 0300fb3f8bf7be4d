// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "suggestion/builtin/readName.h"

#include <algorithm>

namespace Varlo {

using namespace Qt::StringLiterals;

namespace {

constexpr int longestName = 9; // words

/// Whether what stands between brackets, in lower case or in figures ends the name before it.
bool isNameWord(const Reading &reading, int index)
{
    const Word &word = reading.words[index];
    if (word.hasDigit || reading.isIdentifierAt(index))
        return false;
    return word.isCapitalised || word.folded == "&"_L1 || word.folded == "+"_L1;
}

/// "van der", "de la", "&" when a capitalised word follows.
bool connectsAt(const Reading &reading, int index, int limit)
{
    for (int next = index; next < limit && next < index + 3; ++next) {
        const Word &word = reading.words[next];
        if (next > index && word.isCapitalised && !word.hasDigit)
            return true;
        const bool goesOn = isConnector(word.folded) && !word.hasComma && !word.endsSentence && !word.hasColon;
        if (!goesOn)
            return false;
    }
    return false;
}

/// "plc" and "ltd" are written small too; "as" and "sa" then are other words.
bool isWrittenLegalForm(const Word &word)
{
    return isLegalForm(word.folded) && (word.isCapitalised || word.folded.size() > 2);
}

/// "B.V. & Co", "S.A. de C.V.": words that go on behind a legal form.
int endOfLegalForm(const Reading &reading, int index)
{
    int end = index + 1;
    while (end < reading.words.count()) {
        const QString &word = reading.words[end].folded;
        const bool isMexican = word == "de"_L1 && end + 1 < reading.words.count()
            && (reading.words[end + 1].folded == "cv"_L1 || reading.words[end + 1].folded == "rl"_L1);
        if (isMexican)
            end += 2;
        else if (isLegalForm(word) && reading.words[end].isUpperCase && word.size() > 1)
            ++end;
        else
            break;
    }
    return end;
}

bool startsSentence(const Reading &reading, int index)
{
    const Words &words = reading.words;
    if (!isSentenceOpener(words[index].folded) || index + 1 >= words.count())
        return false;
    const Word &next = words[index + 1];
    return !next.isCapitalised && !next.hasDigit && !isConnector(next.folded);
}

/// A heading in capitals above a name in mixed case, or the other way round.
bool changesCase(const Reading &reading, int start, int index)
{
    const Words &words = reading.words;
    const Word &word = words[index];
    if (isConnector(word.folded) || isLegalForm(word.folded) || word.folded.size() < 2)
        return false;
    const auto isUpper = [&words](int at) { return words[at].isUpperCase || isConnector(words[at].folded); };
    bool isUpperSoFar = words[start].isUpperCase;
    qsizetype capitals = 0;
    for (int at = start; at < index; ++at) {
        isUpperSoFar = isUpperSoFar && isUpper(at);
        capitals += isConnector(words[at].folded) ? 0 : words[at].folded.size();
    }
    // "CEIP Los Almendros" begins with an acronym, "FRESHGATE MARKET Store" does not.
    constexpr qsizetype longestInitials = 6;
    if (isUpperSoFar && capitals > longestInitials)
        return !word.isUpperCase;
    constexpr qsizetype longestAcronym = 4;
    return word.isUpperCase && word.folded.size() > longestAcronym && !words[index - 1].isUpperCase;
}

/// "D." is "Don" in Spanish and an initial everywhere else.
bool isFormOfAddressAt(const Reading &reading, int index)
{
    const Word &word = reading.words[index];
    const bool isInitial = word.folded.size() == 1 && reading.language != FilenameLanguage::Spanish;
    return isFormOfAddress(word.folded) && !word.hasComma && !isInitial;
}

/// "Mon-Sat 8.30-5.30", "Polikliniek Cardiologie": unless a legal form shows that the word is part of the name.
bool beginsDepartmentOrHours(const Reading &reading, int index)
{
    const Words &words = reading.words;
    const Word &word = words[index];
    const bool isFollowedByFigures = index + 1 < words.count() && words[index + 1].hasDigit;
    const bool isHours = isWeekday(word.folded) && (word.folded.contains(u'-') || isFollowedByFigures);
    if (!word.isCapitalised || (!isHours && !beginsDepartment(word.folded)))
        return false;
    constexpr int farthestForm = 3;
    for (int next = index + 1; next < std::min(words.count(), index + 1 + farthestForm); ++next) {
        if (isLegalForm(words[next].folded) && words[next].isCapitalised)
            return false;
        if (words[next].hasComma || words[next].endsSentence)
            break;
    }
    return true;
}

/// "Bakers since 1931", "Dormir junto al río desde 1962".
bool leadsToFoundingYear(const Words &words, int index)
{
    constexpr int longestSlogan = 6;
    for (int next = index + 1; next + 1 < std::min(words.count(), index + longestSlogan); ++next) {
        if (isSince(words[next].folded))
            return words[next + 1].hasDigit;
        if (words[next].isCapitalised || words[next].hasDigit || words[next - 1].endsSentence || words[next].isNewPart)
            return false;
    }
    return false;
}

/// "Mondzorg voor jong en oud" behind "Tandartspraktijk De Singel", "Chapa y pintura" behind "Taller Ruano": what an
/// organisation does, in small letters. In a sentence a verb would follow the name.
bool beginsTrade(const Reading &reading, int start, int index)
{
    const Words &words = reading.words;
    const bool isOfOrganisation = isOrganisation(words[start].folded) || isOrganisation(words[index - 1].folded);
    const bool isComplete = isOfOrganisation && index - start > 1 && !isConnector(words[index - 1].folded);
    if (!isComplete || index + 2 >= words.count())
        return false;
    const auto isSmall
        = [&words](int at) { return at < words.count() && !words[at].isCapitalised && !words[at].hasDigit; };
    static const QStringList purposes { u"for"_s, u"voor"_s, u"para"_s };
    const Word &next = words[index + 1];
    if (purposes.contains(next.folded))
        return isSmall(index + 2) && isSmall(index + 3);
    return joinsParties(next.folded, reading.language) && isSmall(index + 2) && !isConnector(words[index + 2].folded);
}

/// "Powering homes since 2009", "Bakers since 1931", "Binnen- en buitenschilderwerk": what stands below a name on
/// paper with a printed head. A gerund or a trade in small letters behind a name that is complete.
bool beginsSlogan(const Reading &reading, int start, int index)
{
    const Words &words = reading.words;
    const Word &word = words[index];
    if (!word.isCapitalised || index + 2 >= words.count())
        return false;
    const Word &next = words[index + 1];
    if (leadsToFoundingYear(words, index) || beginsTrade(reading, start, index))
        return true;
    const bool isSuspended = words.text().at(word.end) == u'-' && isConnector(next.folded);
    if (isSuspended)
        return true;
    const bool isSmall = !next.isCapitalised && !next.hasDigit && !word.hasComma && !next.isNewPart;
    const bool isGerund
        = reading.language == FilenameLanguage::English && word.folded.size() > 5 && word.folded.endsWith("ing"_L1);
    const bool isComplete = index - start > 1 || isOrganisation(words[index - 1].folded);
    return isGerund && isSmall && isComplete && !words[index + 2].isCapitalised;
}

/// "Tollgate Savings Society": a word that labels an amount has one behind it.
bool isPartOfName(const Reading &reading, const LabelMark &label)
{
    static const QList<Label> amounts { Label::Total, Label::OtherAmount, Label::FinalBalance, Label::NetPay };
    const Words &words = reading.words;
    if (!amounts.contains(label.label) || label.end - label.start > 1 || words[label.start].hasColon)
        return false;
    constexpr int farthestAmount = 3;
    for (int index = label.end; index < std::min(words.count(), label.end + farthestAmount); ++index) {
        if (words[index].hasDigit)
            return false;
    }
    return label.end < words.count() && words[label.end].isCapitalised && !reading.labelAt(label.end);
}

bool endsBefore(const Reading &reading, int start, int index)
{
    const Word &word = reading.words[index];
    const Word &before = reading.words[index - 1];
    if (word.isNewPart || word.isOpened || before.isClosed || before.endsSentence || before.hasColon)
        return true;
    if (before.hasComma && !isLegalForm(word.folded))
        return true;
    const LabelMark *label = reading.labelAt(index);
    const bool isLabel = label && (word.isCapitalised || reading.words[label->end - 1].hasColon);
    if (isLabel && !isLegalForm(word.folded) && !isConnector(word.folded) && !isPartOfName(reading, *label))
        return true;
    const TypeMark *type = reading.typeAt(index);
    const bool isHeading = type && type->strength != TypeStrength::Hint && word.isCapitalised;
    if (isHeading || word.hasColon || reading.isDateAt(index))
        return true;
    if (beginsDepartmentOrHours(reading, index) || beginsSlogan(reading, start, index))
        return true;
    return beginsStreet(word.folded) || startsSentence(reading, index) || changesCase(reading, start, index);
}

/// Drops the street's name where the name ran on into an address: "Praktijk Zonnehof Zonnehof 1, 3811 NC".
int withoutStreet(const Reading &reading, int start, int end)
{
    const Words &words = reading.words;
    const bool isFollowed = end < words.count();
    if (end - start < 2 || isLegalForm(words[end - 1].folded))
        return end;
    const Word &last = words[end - 1];
    const bool isHouseNumber = isFollowed && words[end].hasDigit && words[end].folded.size() <= 5
        && !words[end].isNewPart && !reading.isDateAt(end) && !last.hasComma;
    const bool isNumberAfterStreet = isHouseNumber && reading.language != FilenameLanguage::English;
    // "Unit 4" and "12 High Street" stand behind the name in English.
    const bool isStreet = endsStreet(last.folded) && (isHouseNumber || last.hasComma);
    if (isStreet) {
        const bool isWhole = !endsStreet(last.folded) || last.folded.size() > 6;
        const int dropped = isWhole && reading.language == FilenameLanguage::Dutch ? 1 : 2;
        return std::max(start + 1, end - dropped);
    }
    return isNumberAfterStreet ? end - 1 : end;
}

/// "CEIP Los Almendros Murcia, 10 de enero": a place and a date end a letterhead.
int withoutPlaceBeforeDate(const Reading &reading, int start, int end)
{
    const bool isPlace = end < reading.words.count() && reading.words[end - 1].hasComma && reading.isDateAt(end);
    if (!isPlace)
        return end;
    return isLegalForm(reading.words[end - 1].folded) ? end : std::max(start, end - 1);
}

/// "Eastmarsh District Council Revenues and Benefits": the noun that says what the organisation is ends its name when
/// two words or more go on behind it.
int withoutDepartment(const Reading &reading, int start, int end)
{
    const Words &words = reading.words;
    if (reading.language != FilenameLanguage::English)
        return end;
    for (int index = end - 3; index > start; --index) {
        const bool goesOn = isConnector(words[index + 1].folded) || isLegalForm(words[end - 1].folded);
        if (isOrganisation(words[index].folded) && !goesOn) {
            const bool hasLaterNoun = std::any_of(
                &words[index + 1], &words[end - 1] + 1, [](const Word &word) { return isOrganisation(word.folded); });
            return hasLaterNoun ? end : index + 1;
        }
    }
    return end;
}

} // namespace

std::optional<FoundName> readName(const Reading &reading, int start)
{
    const Words &words = reading.words;
    while (start < words.count() && isFormOfAddressAt(reading, start))
        ++start;
    if (start >= words.count() || !words[start].isCapitalised || words[start].hasDigit)
        return {};
    if (startsSentence(reading, start))
        return {};
    // "'t Hoekje" and "& Sons" do not begin a name here; initials and particles do.
    int end = start;
    bool hasLegalForm = false;
    const int limit = std::min(words.count(), start + longestName);
    while (end < limit) {
        if (end > start && endsBefore(reading, start, end))
            break;
        if (end > start && isWrittenLegalForm(words[end])) {
            end = endOfLegalForm(reading, end);
            hasLegalForm = true;
            break;
        }
        if (!isNameWord(reading, end) && !(end > start && connectsAt(reading, end, words.count())))
            break;
        ++end;
    }
    if (!hasLegalForm) {
        end = withoutStreet(reading, start, end);
        end = withoutPlaceBeforeDate(reading, start, end);
        end = withoutDepartment(reading, start, end);
        while (end > start && (isConnector(words[end - 1].folded) && !words[end - 1].isCapitalised))
            --end;
    }
    if (end <= start)
        return {};
    const QString text = words.joined(start, end);
    constexpr qsizetype shortestName = 2;
    if (text.size() < shortestName)
        return {};
    return FoundName { text, start, end, hasLegalForm };
}

} // namespace Varlo
