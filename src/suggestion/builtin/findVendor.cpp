// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "suggestion/builtin/findVendor.h"

#include <algorithm>
#include <QRegularExpression>

namespace Varlo {

using namespace Qt::StringLiterals;

namespace {

bool isOf(Label label, std::initializer_list<Label> labels)
{
    return std::find(labels.begin(), labels.end(), label) != labels.end();
}

/// Behind a label may stand another one: "seller: name: Acme".
int valueAfter(const Reading &reading, const LabelMark &mark)
{
    int start = mark.end;
    while (start < reading.words.count() && reading.words[start].hasColon && start < mark.end + 3)
        ++start;
    return start;
}

/// Whether the word stands in the address of the one who gets the document.
bool isAddressed(const Reading &reading, int start)
{
    constexpr int longestAddress = 7;
    const LabelMark *nearest = nullptr;
    for (const LabelMark &mark : reading.labels) {
        if (mark.end > start)
            break;
        if (isOf(mark.label, { Label::Buyer, Label::Attention, Label::PartyTwo, Label::Seller, Label::PartyOne }))
            nearest = &mark;
    }
    return nearest && isOf(nearest->label, { Label::Buyer, Label::Attention, Label::PartyTwo })
        && start - nearest->end < longestAddress;
}

/// "From the desk of the head teacher". "De heer Jansen" is a name that gets the letter.
bool beginsPhrase(const Words &words, int index)
{
    if (!isSentenceOpener(words[index].folded) || index + 2 >= words.count())
        return false;
    const Word &next = words[index + 1];
    return !next.isCapitalised && !next.hasDigit && !isFormOfAddress(next.folded) && !words[index + 2].isCapitalised;
}

/// The first word behind headings, their numbers and labelled figures at the top of a document.
int letterheadStart(const Reading &reading)
{
    const Words &words = reading.words;
    constexpr int latest = 30;
    int index = 0;
    while (index < std::min(words.count(), latest)) {
        const LabelMark *label = reading.labelAt(index);
        const TypeMark *type = reading.typeAt(index);
        static const QStringList numberWords { u"no"_s, u"nr"_s, u"n"_s, u"num"_s, u"ref"_s };
        if (type)
            index = type->end;
        else if (label
            && isOf(
                label->label, { Label::Buyer, Label::Attention, Label::PartyTwo, Label::Salutation, Label::Subject }))
            return words.count();
        else if (label)
            index = label->end;
        else if (numberWords.contains(words[index].folded) || words[index].hasDigit || reading.isDateAt(index)
            || reading.isAmountAt(index) || !words[index].isCapitalised || beginsPhrase(words, index))
            ++index;
        else
            return index;
    }
    return words.count();
}

/// Names of companies often return in their addresses of mail and pages.
bool isInDomain(const Reading &reading, const FoundName &name)
{
    static const QRegularExpression domain(uR"((?:@|www\.|https?://)([A-Za-z0-9.-]{3,80}))"_s);
    QString domains;
    QRegularExpressionMatchIterator matches = domain.globalMatch(reading.source.text);
    while (matches.hasNext())
        domains += matches.next().captured(1).toLower().remove(u'-').remove(u'.') + u' ';
    for (int index = name.start; index < name.end; ++index) {
        const QString &word = reading.words[index].folded;
        if (word.size() > 3 && domains.contains(word))
            return true;
    }
    return false;
}

struct Candidates {
    explicit Candidates(const Reading &of)
        : reading(of)
    {
    }
    void offer(const std::optional<FoundName> &name, double weight)
    {
        if (!name)
            return;
        if (name->hasLegalForm)
            weight += 20;
        if (isInDomain(reading, *name))
            weight += 25;
        if (weight > bestWeight) {
            best = name;
            bestWeight = weight;
        }
    }
    const Reading &reading;
    std::optional<FoundName> best;
    double bestWeight = 0;
};

/// "3011 AB Rotterdam": the place behind a Dutch postcode ends an address.
bool isBehindPostcode(const Words &words, int index)
{
    if (index < 2)
        return false;
    const Word &figures = words[index - 2];
    const Word &letters = words[index - 1];
    const bool isFigures = figures.hasDigit && figures.folded.size() == 4 && !figures.hasComma;
    return isFigures && letters.isUpperCase && letters.folded.size() == 2 && !letters.hasComma;
}

/// Walks back from a legal form to where its name begins.
std::optional<FoundName> nameBeforeLegalForm(const Reading &reading, int form)
{
    constexpr int longest = 7;
    for (int start = std::max(0, form - longest); start < form; ++start) {
        const bool mayBegin = start == 0 || !reading.words[start - 1].isCapitalised || reading.words[start].isNewPart
            || reading.words[start - 1].endsSentence || reading.words[start - 1].hasColon
            || reading.words[start - 1].hasDigit || reading.words[start - 1].hasComma || reading.labelAt(start - 1)
            || reading.typeAt(start - 1) || reading.words[start].isOpened || isBehindPostcode(reading.words, start - 1);
        const bool isInPostcode = isBehindPostcode(reading.words, start) || isBehindPostcode(reading.words, start + 1);
        if (!mayBegin || isInPostcode || reading.labelAt(start) || reading.typeAt(start))
            continue;
        const auto name = readName(reading, start);
        if (name && name->end > form && name->hasLegalForm)
            return name;
    }
    return {};
}

} // namespace

namespace {

bool isAt(const Words &words, int position, int start, int end)
{
    if (position + end - start > words.count())
        return false;
    for (int offset = 0; offset < end - start; ++offset) {
        if (words[position + offset].folded != words[start + offset].folded)
            return false;
    }
    return true;
}

/// Whether words [start, end) stand once more in the document, as all of a name there.
bool returns(const Words &words, int start, int end)
{
    const auto isApart = [&words](int index) {
        return index == 0 || index == words.count() || !words[index - 1].isCapitalised || words[index].isNewPart
            || words[index - 1].endsSentence || words[index - 1].hasComma || words[index - 1].hasDigit;
    };
    const int length = end - start;
    // "Birch Lane Surgery" stands in a street of that name.
    if (endsStreet(words[end - 1].folded))
        return false;
    for (int position = 0; position + length <= words.count(); ++position) {
        const bool isElsewhere = position >= end || position + length <= start;
        if (!isElsewhere || !words[position].isCapitalised || !isApart(position))
            continue;
        const int behind = position + length;
        const bool ends = isApart(behind) || !words[behind].isCapitalised;
        if (ends && isAt(words, position, start, end))
            return true;
    }
    return false;
}

/// A name that returns is as long as both places have in common: at the other one stands no slogan behind it.
FoundName asItReturns(const Reading &reading, FoundName name)
{
    const Words &words = reading.words;
    constexpr int shortest = 2;
    for (int end = name.end; end >= name.start + shortest && !name.hasLegalForm; --end) {
        if (isConnector(words[end - 1].folded) || !returns(words, name.start, end))
            continue;
        name.end = end;
        name.text = words.joined(name.start, end);
        break;
    }
    return name;
}

/// "Acme Ltd, Accounts Payable, Attn. Ms Adams": the paper begins with the address of the one who gets it.
bool isRecipient(const Reading &reading, const FoundName &name)
{
    constexpr int farthest = 10;
    for (const LabelMark &mark : reading.labels) {
        if (mark.start < name.end)
            continue;
        if (mark.start > name.end + farthest)
            return false;
        if (isOf(mark.label, { Label::Attention, Label::PayingDepartment })) {
            const auto isForm = [](const Word &word) { return isLegalForm(word.folded) && word.isCapitalised; };
            return std::none_of(&reading.words[name.end], &reading.words[mark.start], isForm);
        }
    }
    return false;
}

/// Telephone, tax number or account behind a name: who asks for money says how to reach and to pay him.
bool isFollowedByRegistration(const Reading &reading, const FoundName &name)
{
    constexpr int farthest = 14;
    for (const LabelMark &mark : reading.labels) {
        if (mark.start < name.end || mark.start > name.end + farthest)
            continue;
        static const QStringList registrations { u"tel"_s, u"telephone"_s, u"phone"_s, u"tfno"_s, u"telefono"_s,
            u"telefoon"_s, u"vat"_s, u"kvk"_s, u"btw"_s, u"btw-id"_s, u"cif"_s, u"nif"_s, u"iban"_s };
        if (registrations.contains(reading.words[mark.start].folded))
            return true;
    }
    return false;
}

} // namespace

std::optional<FoundName> findVendor(const Reading &reading)
{
    const Words &words = reading.words;
    Candidates candidates(reading);
    for (const LabelMark &mark : reading.labels) {
        const bool isLabelled = words[mark.end - 1].hasColon || mark.end - mark.start > 1;
        const double weight = isLabelled ? 100 : 60;
        if (isOf(mark.label, { Label::Seller, Label::PartyOne }) && mark.end < words.count())
            candidates.offer(readName(reading, valueAfter(reading, mark)), weight);
    }
    const int top = letterheadStart(reading);
    if (top < words.count() && !isAddressed(reading, top) && !reading.source.title) {
        const auto name = readName(reading, top);
        // What begins a report or a recipe is its title.
        const bool mayBeTitle = !reading.type || shapeOf(reading.type->type) == Shape::Titled;
        const bool isCompany = name && (name->hasLegalForm || isOrganisation(words[name->start].folded));
        if (name && !isRecipient(reading, *name) && (!mayBeTitle || isCompany))
            candidates.offer(name, top < 12 ? 75 : 45);
    }
    for (int index = 1; index < words.count(); ++index) {
        const bool isForm
            = isLegalForm(words[index].folded) && (words[index].isCapitalised || words[index].folded.size() > 2);
        if (!isForm)
            continue;
        const auto name = nameBeforeLegalForm(reading, index);
        if (!name || isAddressed(reading, name->start) || isRecipient(reading, *name))
            continue;
        const double evidence = isFollowedByRegistration(reading, *name) ? 10 : 0;
        candidates.offer(name, evidence + 50.0 - 10.0 * index / words.count());
    }
    for (int index = 0; index < words.count(); ++index) {
        const bool isNoun = isOrganisation(words[index].folded) && words[index].isCapitalised;
        if (isNoun && reading.language != FilenameLanguage::English && !isAddressed(reading, index))
            candidates.offer(readName(reading, index), 40.0 - 10.0 * index / words.count());
    }
    return candidates.best ? std::optional(asItReturns(reading, *candidates.best)) : std::nullopt;
}

std::optional<FoundName> findSender(const Reading &reading)
{
    Candidates candidates(reading);
    const Words &words = reading.words;
    const int top = letterheadStart(reading);
    if (top < words.count() && !isAddressed(reading, top))
        candidates.offer(readName(reading, top), top < 12 ? 75 : 45);
    for (const LabelMark &mark : reading.labels) {
        if (mark.end >= words.count())
            continue;
        if (mark.label == Label::Closing)
            candidates.offer(readName(reading, mark.end), 60);
        else if (mark.label == Label::Seller && words[mark.end - 1].hasColon)
            candidates.offer(readName(reading, valueAfter(reading, mark)), 90);
    }
    return candidates.best ? std::optional(asItReturns(reading, *candidates.best)) : std::nullopt;
}

QString withoutLegalForm(const QString &name)
{
    QStringList pieces = name.split(u' ', Qt::SkipEmptyParts);
    while (pieces.size() > 1) {
        const QString last = folded(pieces.last());
        const bool belongsToForm = isLegalForm(last) || (last == "de"_L1 && pieces.size() > 2);
        if (!belongsToForm)
            break;
        pieces.removeLast();
    }
    QString result = pieces.join(u' ');
    if (result.endsWith(u','))
        result.chop(1);
    return result;
}

} // namespace Varlo
