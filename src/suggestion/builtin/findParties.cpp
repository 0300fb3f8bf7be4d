// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "suggestion/builtin/findParties.h"

#include "suggestion/builtin/findVendor.h"
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
        const LabelMark *label = reading.labelAt(index);
        if (isPlaceholder || (label && label->label != Label::Seller))
            continue;
        if (const auto name = readName(reading, index))
            return name;
    }
    return {};
}

/// Where the second party may begin: behind an "and" that does not stand in the middle of a phrase.
std::optional<FoundName> secondName(const Reading &reading, const FoundName &first)
{
    const Words &words = reading.words;
    const int limit = std::min(words.count() - 1, first.end + farthestSecondParty);
    for (int index = first.end; index < limit; ++index) {
        if (!joinsParties(words[index].folded, reading.language))
            continue;
        const Word &before = words[index - 1];
        // "de otra parte", "anderzijds" say it all; an "and" may stand inside an address or a role.
        const bool isPlain = words[index].folded.size() > 3;
        const bool isJoint = isPlain || index == first.end || before.hasComma || before.isClosed || before.endsSentence
            || before.hasDigit || words[index].isUpperCase || words[index].isNewPart || words[index + 1].isNewPart
            || words[index].hasColon || words[index + 1].hasDigit || isFormOfAddress(words[index + 1].folded);
        if (!isJoint)
            continue;
        constexpr int farthest = 8;
        const auto name = firstNameFrom(reading, index + 1, index + 1 + farthest);
        if (name && name->text != first.text)
            return name;
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
            return { one, two };
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
        pair.two = partyBehind(reading, { Label::Buyer });
    if (!pair.one) {
        const auto issuer = findVendor(reading);
        const bool isAnother = issuer && pair.two && issuer->text != pair.two->text;
        pair.one = isAnother ? issuer : std::nullopt;
    }
    if (pair.one && pair.two)
        return pair.one->text + u" x "_s + pair.two->text;
    if (pair.one)
        return pair.one->text;
    return pair.two ? std::optional(pair.two->text) : std::nullopt;
}

} // namespace Varlo
