// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "suggestion/builtin/findLabels.h"

#include "suggestion/builtin/PhraseIndex.h"

namespace Varlo {

using namespace Qt::StringLiterals;

namespace {

struct KnownLabel {
    Label label;
    FilenameLanguage language;
    bool needsColon = false;
};

const PhraseIndex<KnownLabel> &knownLabels()
{
    static const PhraseIndex<KnownLabel> index = [] {
        PhraseIndex<KnownLabel> filled;
        for (const Vocabulary *each : vocabularies()) {
            for (const LabelWords &group : each->labels) {
                const QStringList phrases = group.phrases.split(u'|', Qt::SkipEmptyParts);
                for (const QString &phrase : phrases)
                    filled.insert(phrase, { group.label, each->language, phrase.endsWith(u':') });
            }
        }
        return filled;
    }();
    return index;
}

bool isAmountLabel(Label label)
{
    return label == Label::Total || label == Label::OtherAmount || label == Label::FinalBalance
        || label == Label::NetPay;
}

bool isDateLabel(Label label)
{
    return label == Label::DocumentDate || label == Label::PlainDate || label == Label::LesserDate
        || label == Label::OtherDate;
}

/// Whether the words are used as a label here and not just in a sentence.
bool holdsAt(const Words &words, int start, int end, const KnownLabel &known, FilenameLanguage preferred)
{
    const Word &first = words[start];
    const bool hasColon = words[end - 1].hasColon;
    if (known.needsColon)
        return hasColon;
    const bool isForeign = preferred != FilenameLanguage::Auto && known.language != preferred;
    if (isForeign && end - start == 1 && !hasColon && !isAmountLabel(known.label) && known.label != Label::PlainDate)
        return false;
    // "Iván Prado Mesa, vecino de": a word of a name, not the label of a table in a restaurant.
    const bool isListed = words[end - 1].hasComma && end - start == 1;
    if (known.label == Label::Field && isListed && !hasColon)
        return false;
    if (isAmountLabel(known.label) || isDateLabel(known.label) || known.label == Label::Parties
        || known.label == Label::ActingFor)
        return true;
    return hasColon || first.isCapitalised || first.isNewPart || start == 0;
}

/// "(incl. btw)" behind a total belongs to its label.
int endWithTaxNote(const Words &words, int end)
{
    static const QStringList beginnings { u"incl"_s, u"inc"_s, u"inclusief"_s, u"including"_s, u"iva"_s };
    static const QStringList notes { u"incl"_s, u"inc"_s, u"inclusief"_s, u"including"_s, u"incluido"_s, u"incluidos"_s,
        u"btw"_s, u"vat"_s, u"tax"_s, u"taxes"_s, u"iva"_s, u"gst"_s, u"impuestos"_s };
    if (end >= words.count() || words[end - 1].hasColon || !beginnings.contains(words[end].folded))
        return end;
    const bool isSpanishTax
        = words[end].folded == "iva"_L1 && (end + 1 >= words.count() || !words[end + 1].folded.startsWith("incl"_L1));
    if (isSpanishTax)
        return end;
    while (end < words.count() && notes.contains(words[end].folded))
        ++end;
    return end;
}

} // namespace

std::vector<LabelMark> findLabels(const Words &words, FilenameLanguage preferred)
{
    std::vector<LabelMark> marks;
    int position = 0;
    while (position < words.count()) {
        std::optional<LabelMark> best;
        knownLabels().forEachAt(words, position, [&](const KnownLabel &known, int end) {
            if (!holdsAt(words, position, end, known, preferred))
                return;
            const bool isBetter = !best || end > best->end || (end == best->end && known.language == preferred);
            if (isBetter)
                best = LabelMark { known.label, position, end, known.language };
        });
        if (best && best->label == Label::Total)
            best->end = endWithTaxNote(words, best->end);
        if (best)
            marks.push_back(*best);
        position = best ? best->end : position + 1;
    }
    return marks;
}

/// How far a value may stand from its label, in words: a weekday, a place or a note in brackets between them.
static constexpr int widestGap = 5;
/// How far the values of a table's row may stand from each other.
static constexpr int widestColumnGap = 3;

static bool isRow(const std::vector<Place> &values, size_t first, size_t count)
{
    if (first + count > values.size())
        return false;
    for (size_t next = first + 1; next < first + count; ++next) {
        if (values[next].first - values[next - 1].second > widestColumnGap)
            return false;
    }
    return true;
}

std::vector<int> labelsOfValues(const std::vector<Place> &labels, const std::vector<Place> &values)
{
    std::vector<int> owners(values.size(), -1);
    size_t value = 0;
    size_t label = 0;
    while (label < labels.size()) {
        size_t lastLabel = label;
        while (value < values.size() && values[value].first < labels[label].second)
            ++value;
        if (value == values.size())
            break;
        while (lastLabel + 1 < labels.size() && labels[lastLabel + 1].second <= values[value].first)
            ++lastLabel;
        size_t firstLabel = lastLabel;
        while (firstLabel > label && labels[firstLabel].first - labels[firstLabel - 1].second <= widestColumnGap)
            --firstLabel;

        const size_t labelCount = lastLabel - firstLabel + 1;
        size_t followers = value;
        while (followers < values.size()
            && (lastLabel + 1 == labels.size() || values[followers].first < labels[lastLabel + 1].first))
            ++followers;
        const bool isClose = values[value].first - labels[lastLabel].second <= widestGap;
        if (isClose && labelCount > 1 && followers - value >= labelCount && isRow(values, value, labelCount)) {
            for (size_t column = 0; column < labelCount; ++column)
                owners[value + column] = static_cast<int>(firstLabel + column);
        } else if (isClose) {
            owners[value] = static_cast<int>(lastLabel);
        }
        value = followers;
        label = lastLabel + 1;
    }
    return owners;
}

} // namespace Varlo
