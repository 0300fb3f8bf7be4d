// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "suggestion/builtin/findDates.h"

#include <algorithm>
#include <QHash>
#include <QRegularExpression>
#include <QSet>

namespace Varlo {

using namespace Qt::StringLiterals;

static const QHash<QString, int> &monthNumbers()
{
    static const QHash<QString, int> numbers = [] {
        QHash<QString, int> filled;
        for (const Vocabulary *each : vocabularies()) {
            for (int month = 0; month < each->months.size(); ++month) {
                const QStringList names = each->months[month].split(u'|');
                for (const QString &name : names)
                    filled.insert(folded(name), month + 1);
            }
        }
        return filled;
    }();
    return numbers;
}

static QString monthAlternatives()
{
    QStringList names = monthNumbers().keys();
    // The longest first, or "mar" would be taken from "march".
    std::sort(names.begin(), names.end(), [](const QString &a, const QString &b) { return a.size() > b.size(); });
    return names.join(u'|');
}

static QRegularExpression expression(const QString &pattern)
{
    QRegularExpression compiled(
        pattern, QRegularExpression::CaseInsensitiveOption | QRegularExpression::UseUnicodePropertiesOption);
    compiled.optimize();
    return compiled;
}

static std::optional<QDate> validDate(int year, int month, int day)
{
    const QDate date(year < 100 ? 2000 + year : year, month, day);
    if (!date.isValid() || date.year() < 1900 || date.year() > 2099)
        return {};
    return date;
}

static bool isAmerican(const Words &words, FilenameLanguage language)
{
    if (language != FilenameLanguage::English)
        return false;
    static const QRegularExpression figures
        = expression(uR"((?<![\d/])(\d{1,2})/(\d{1,2})/(?:\d{4}|\d{2})(?![\d/]))"_s);
    QRegularExpressionMatchIterator matches = figures.globalMatch(words.text());
    while (matches.hasNext()) {
        const QRegularExpressionMatch match = matches.next();
        if (match.capturedView(1).toInt() > 12)
            return false;
        if (match.capturedView(2).toInt() > 12)
            return true;
    }
    static const QRegularExpression european = expression(uR"([£€]|\b(?:GBP|EUR|VAT|plc|postcode)\b)"_s);
    static const QRegularExpression american(uR"(\$|\bUSD\b|\b[A-Z]{2} \d{5}\b)"_s);
    return !european.match(words.text()).hasMatch() && american.match(words.text()).hasMatch();
}

static std::optional<QDate> dateOf(const QRegularExpressionMatch &match, bool isMonthFirst)
{
    const auto number = [&match](const QString &group) { return match.captured(group).toInt(); };
    const auto month = [&match](const QString &group) { return monthNumbers().value(folded(match.captured(group))); };
    if (match.hasCaptured(u"isoYear"_s))
        return validDate(number(u"isoYear"_s), number(u"isoMonth"_s), number(u"isoDay"_s));
    if (match.hasCaptured(u"namedMonth"_s))
        return validDate(number(u"namedYear"_s), month(u"namedMonth"_s), number(u"namedDay"_s));
    if (match.hasCaptured(u"leadingMonth"_s))
        return validDate(number(u"leadingYear"_s), month(u"leadingMonth"_s), number(u"leadingDay"_s));
    const int first = number(u"first"_s);
    const int second = number(u"second"_s);
    const int year = number(u"year"_s);
    const bool swaps = isMonthFirst ? first <= 12 : second > 12;
    return swaps ? validDate(year, first, second) : validDate(year, second, first);
}

std::vector<FoundDate> findDates(const Words &words, FilenameLanguage language)
{
    // Before and behind a date stand no further figures, or it is part of an order number or of an address.
    static const QRegularExpression anyDate = expression(
        uR"((?<![\d.\-/\p{L}])(?:(?<isoYear>(?:19|20)\d\d)([-/.])(?<isoMonth>\d{1,2})\g{-2}(?<isoDay>\d{1,2})(?=T\d|(?![\d\-/\p{L}])))"_s
        + uR"(|(?<first>\d{1,2}) ?([-/.]) ?(?<second>\d{1,2}) ?\g{-2} ?(?<year>\d{4}|\d{2})(?![\d\-/\p{L}]|\.\d))"_s
        + uR"(|(?<namedDay>\d{1,2})(?:st|nd|rd|th|[.ºª])?(?:[ \-/.]| de | of | day of |(?:st|nd|rd|th) day of )(?<namedMonth>)"_s
        + monthAlternatives() + uR"()\.?,?(?:[ \-/]| de | del | of )(?<namedYear>\d{4}|\d{2}(?=[^\d:.,]|$))(?!\d))"_s
        + uR"(|(?<leadingMonth>)"_s + monthAlternatives()
        + uR"()\.?[ \-](?<leadingDay>\d{1,2})(?:st|nd|rd|th)?,? ?(?<leadingYear>\d{4})(?!\d)))"_s);
    const bool isMonthFirst = isAmerican(words, language);
    std::vector<FoundDate> dates;
    QRegularExpressionMatchIterator matches = anyDate.globalMatch(words.text());
    while (matches.hasNext()) {
        const QRegularExpressionMatch match = matches.next();
        if (const auto date = dateOf(match, isMonthFirst)) {
            dates.push_back({ *date, words.wordAt(match.capturedStart()), words.wordAt(match.capturedEnd() - 1) + 1 });
        }
    }
    return dates;
}

namespace {

// How much a date looks like the document's own.
enum Likelihood {
    Never = 0,
    Mentioned = 20,
    LeastTaken = 30,
    Lesser = 35,
    Loose = 50,
    InSentence = 74, // behind a label in small letters: "signed on", but also "the law published on"
    BehindPlace = 75,
    Plain = 80,
    Own = 100
};

int likelihood(const Words &words, Label label, const Place &place)
{
    const Word &first = words[place.first];
    const bool isInSentence = !first.isCapitalised && !first.isNewPart && place.first > 0
        && !words[place.second - 1].hasColon && !first.hasDigit;
    if (label == Label::DocumentDate)
        return isInSentence ? InSentence : Own;
    if (label == Label::PlainDate)
        return Plain;
    if (label == Label::LesserDate)
        return Lesser;
    return Never;
}

/// "from 1 May to 31 May": the end of a range is what its beginning is.
bool endsRange(const Words &words, const FoundDate &before, const FoundDate &date)
{
    static const QSet<QString> connectors { u"to"_s, u"until"_s, u"through"_s, u"t/m"_s, u"tot"_s, u"al"_s, u"a"_s,
        u"hasta"_s, u"-"_s, u"and"_s, u"en"_s, u"y"_s };
    const int gap = date.start - before.end;
    if (gap == 0)
        return words[date.start].isNewPart && !words[before.end - 1].endsSentence;
    const QString &next = words[before.end].folded;
    return gap <= 4 && connectors.contains(next);
}

/// "Local news Thursday, 13 February 2025": the line under a newspaper's name.
bool isDateline(const Words &words, int start)
{
    constexpr int latest = 20;
    return start < latest && start > 0 && words[start - 1].isCapitalised && isWeekday(words[start - 1].folded);
}

int unlabelledLikelihood(const Words &words, int start)
{
    if (start == 0)
        return Loose;
    int previous = start - 1;
    if (previous > 0 && isWeekday(words[previous].folded)) {
        --previous;
        const Word &ahead = words[previous];
        const bool isSpokenOf = isConnector(ahead.folded) || isSentenceOpener(ahead.folded);
        if (isDateline(words, start) && !isSpokenOf && !ahead.hasComma)
            return Loose;
    }
    const Word &before = words[previous];
    if (before.hasComma && before.isCapitalised && !before.hasDigit)
        return BehindPlace;
    // "En Madrid, a 14 de marzo"
    if (before.folded == "a"_L1 && previous > 0 && words[previous - 1].hasComma)
        return BehindPlace;
    const bool isInSentence = !before.isCapitalised && !before.hasDigit && !before.endsSentence && !before.hasColon
        && !before.isClosed && !before.hasComma && !words[start].isNewPart && !words[start].isOpened;
    return isInSentence ? Mentioned : Loose;
}

} // namespace

std::optional<QDate> documentDate(
    const Words &words, const std::vector<FoundDate> &dates, const std::vector<LabelMark> &labels)
{
    std::vector<Place> labelPlaces;
    std::vector<Label> labelKinds;
    for (const LabelMark &mark : labels) {
        const bool isDateLabel = mark.label == Label::DocumentDate || mark.label == Label::PlainDate
            || mark.label == Label::LesserDate || mark.label == Label::OtherDate;
        if (isDateLabel) {
            labelPlaces.emplace_back(mark.start, mark.end);
            labelKinds.push_back(mark.label);
        }
    }
    std::vector<Place> datePlaces;
    for (const FoundDate &date : dates)
        datePlaces.emplace_back(date.start, date.end);
    const std::vector<int> owners = labelsOfValues(labelPlaces, datePlaces);

    // "by" or "until" a date stands right before it: behind "By Morgan Ashby" stands another date.
    const auto hasLabel = [&](size_t index) {
        if (owners[index] < 0)
            return false;
        const Place &label = labelPlaces[static_cast<size_t>(owners[index])];
        const bool isBareWord = label.second - label.first == 1 && !words[label.first].hasColon;
        const bool isWeak = labelKinds[static_cast<size_t>(owners[index])] == Label::OtherDate;
        return !isBareWord || !isWeak || dates[index].start - label.second <= 1;
    };

    std::optional<QDate> best;
    int bestLikelihood = LeastTaken - 1;
    int previousLikelihood = Never;
    for (size_t index = 0; index < dates.size(); ++index) {
        const FoundDate &date = dates[index];
        int current = hasLabel(index) ? likelihood(words, labelKinds[static_cast<size_t>(owners[index])],
                          labelPlaces[static_cast<size_t>(owners[index])])
                                      : unlabelledLikelihood(words, date.start);
        if (!hasLabel(index) && index > 0 && endsRange(words, dates[index - 1], date))
            current = std::min<int>(previousLikelihood, Mentioned);
        if (current > bestLikelihood) {
            best = date.date;
            bestLikelihood = current;
        }
        previousLikelihood = current;
    }
    return best;
}

} // namespace Varlo
