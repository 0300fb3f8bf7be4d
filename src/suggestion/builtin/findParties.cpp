// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "suggestion/builtin/findParties.h"

#include "suggestion/builtin/findVendor.h"
#include "suggestion/builtin/mixedCaseForm.h"
#include <algorithm>

namespace Varlo {

using namespace Qt::StringLiterals;

namespace {

constexpr int farthestFirstParty = 14; // words: titles, "the private company", a number in brackets
constexpr int farthestSecondParty = 90; // an address, a register, a role stand between the two

std::optional<FoundName> firstNameFrom(const Reading &reading, int start, int limit)
{
    for (int index = start; index < std::min(limit, reading.words.count()); ++index) {
        const Word &word = reading.words[index];
        const bool isPlaceholder = word.hasDigit || !word.isCapitalised
            || (isSentenceOpener(word.folded) && !isFormOfAddress(word.folded)) || isConnector(word.folded)
            || joinsParties(word.folded, reading.language) || reading.isDateAt(index);
        // "T. Achterberg": the letter would be a small word of another language without its dot.
        const bool isInitial
            = word.keepsDot && word.isCapitalised && word.folded.size() == 1 && !isFormOfAddress(word.folded);
        const LabelMark *label = reading.labelAt(index);
        const bool isOtherLabel = label && label->label != Label::Seller && label->label != Label::ActingFor;
        if ((isPlaceholder && !isInitial) || isOtherLabel)
            continue;
        if (const auto name = readName(reading, index))
            return name;
    }
    return {};
}

/// "De una parte, D. Gonzalo Iriarte, en representación de Envases Duero, S.A.": the company is the party.
FoundName representedBy(const Reading &reading, const FoundName &name)
{
    constexpr int farthest = 16;
    for (const LabelMark &mark : reading.labels) {
        const bool isBehind = mark.start >= name.end && mark.start < name.end + farthest;
        if (isBehind && (mark.label == Label::PartyTwo || mark.label == Label::Parties))
            break;
        if (!isBehind || mark.label != Label::ActingFor)
            continue;
        constexpr int farthestCompany = 8; // "de la empresa", "the private company"
        if (const auto company = firstNameFrom(reading, mark.end, mark.end + farthestCompany))
            return *company;
    }
    return name;
}

/// "y de otra parte", "anderzijds", "and (2)": words that can introduce nothing but the other party.
bool introducesOtherParty(const Words &words, int index)
{
    static const QStringList unmistakable { u"otra"_s, u"otro"_s, u"anderzijds"_s };
    if (unmistakable.contains(words[index].folded))
        return true;
    return index + 1 < words.count() && words[index + 1].folded == "2"_L1;
}

bool hasAddressWord(const Words &words, int start, int end)
{
    for (int index = start; index < end; ++index) {
        if (isAddressWord(words[index].folded) || beginsStreet(words[index].folded))
            return true;
    }
    return false;
}

/// Where the second party may begin: behind an "and" that does not stand in the middle of a phrase.
std::optional<FoundName> nameBehindJoint(const Reading &reading, const FoundName &first, int joint)
{
    constexpr int farthest = 8;
    const auto name = firstNameFrom(reading, joint + 1, joint + 1 + farthest);
    const bool isAnother
        = name && name->text != first.text && !hasAddressWord(reading.words, joint + 1, name->start + 1);
    return isAnother ? std::optional(representedBy(reading, *name)) : std::nullopt;
}

bool isJoint(const Words &words, const FoundName &first, int index)
{
    const Word &before = words[index - 1];
    // An "and" may stand inside an address or a role.
    return index == first.end || before.hasComma || before.isClosed || before.endsSentence || before.hasDigit
        || words[index].isUpperCase || words[index].isNewPart || words[index + 1].isNewPart || words[index].hasColon
        || words[index + 1].hasDigit || isFormOfAddress(words[index + 1].folded);
}

std::optional<FoundName> secondName(const Reading &reading, const FoundName &first)
{
    const Words &words = reading.words;
    const int limit = std::min(words.count() - 1, first.end + farthestSecondParty);
    for (const bool isUnmistakable : { true, false }) {
        for (int index = first.end; index < limit; ++index) {
            const bool joins = joinsParties(words[index].folded, reading.language)
                && (isUnmistakable ? introducesOtherParty(words, index) : isJoint(words, first, index));
            if (!joins)
                continue;
            if (const auto name = nameBehindJoint(reading, first, index))
                return name;
        }
    }
    return {};
}

struct Pair {
    std::optional<FoundName> one, two;
};

Pair partiesByIntroduction(const Reading &reading)
{
    for (const LabelMark &mark : reading.labels) {
        if (mark.label != Label::Parties)
            continue;
        const auto one = firstNameFrom(reading, mark.end, mark.end + farthestFirstParty);
        if (!one)
            continue;
        if (const auto two = secondName(reading, *one))
            return { representedBy(reading, *one), two };
    }
    return {};
}

std::optional<FoundName> partyBehind(const Reading &reading, std::initializer_list<Label> roles)
{
    for (const LabelMark &mark : reading.labels) {
        const bool isRole = std::find(roles.begin(), roles.end(), mark.label) != roles.end();
        const bool isLabel = reading.words[mark.end - 1].hasColon || reading.words[mark.start].isNewPart;
        if (!isRole || !isLabel || mark.end >= reading.words.count())
            continue;
        constexpr int farthest = 5;
        if (const auto name = firstNameFrom(reading, mark.end, mark.end + farthest))
            return name;
    }
    return {};
}

} // namespace

std::optional<QString> findParties(const Reading &reading)
{
    Pair pair { partyBehind(reading, { Label::PartyOne }), partyBehind(reading, { Label::PartyTwo }) };
    if (!pair.one || !pair.two) {
        const Pair introduced = partiesByIntroduction(reading);
        if (introduced.one && introduced.two)
            pair = introduced;
    }
    if (!pair.one)
        pair.one = partyBehind(reading, { Label::Seller });
    if (!pair.two)
        pair.two = partyBehind(reading, { Label::Buyer, Label::Attention });
    if (!pair.one) {
        const auto issuer = findVendor(reading);
        const bool isAnother = issuer && pair.two && issuer->text != pair.two->text;
        pair.one = isAnother ? issuer : std::nullopt;
    }
    if (pair.one && pair.two)
        return mixedCaseForm(reading.words, *pair.one) + u" x "_s + mixedCaseForm(reading.words, *pair.two);
    if (pair.one)
        return mixedCaseForm(reading.words, *pair.one);
    return pair.two ? std::optional(mixedCaseForm(reading.words, *pair.two)) : std::nullopt;
}

} // namespace Varlo
