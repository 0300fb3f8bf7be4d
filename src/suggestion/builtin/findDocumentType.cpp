// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "suggestion/builtin/findDocumentType.h"

#include "suggestion/builtin/PhraseIndex.h"
#include <algorithm>
#include <map>

namespace Varlo {

using namespace Qt::StringLiterals;

namespace {

struct KnownType {
    DocumentType type;
    TypeStrength strength;
    FilenameLanguage language;
    QString phrase;
};

const PhraseIndex<KnownType> &knownTypes()
{
    static const PhraseIndex<KnownType> index = [] {
        PhraseIndex<KnownType> filled;
        for (const Vocabulary *each : vocabularies()) {
            for (const TypeWords &group : each->types) {
                const QStringList phrases = group.phrases.split(u'|', Qt::SkipEmptyParts);
                for (QString phrase : phrases) {
                    TypeStrength strength = TypeStrength::Word;
                    if (phrase.startsWith(u'^')) {
                        strength = TypeStrength::Hint;
                        phrase.remove(0, 1);
                    } else if (phrase.endsWith(u'~')) {
                        strength = TypeStrength::Ambiguous;
                        phrase.chop(1);
                    }
                    filled.insert(phrase, { group.type, strength, each->language, phrase });
                }
            }
        }
        return filled;
    }();
    return index;
}

bool isMostlyUpperCase(const Words &words)
{
    int upper = 0;
    for (int index = 0; index < words.count(); ++index)
        upper += words[index].isUpperCase ? 1 : 0;
    return upper * 3 > words.count();
}

double weightOfPlace(int start)
{
    if (start < 12)
        return 60;
    if (start < 45)
        return 42;
    return start < 120 ? 22 : 8;
}

double weight(const Words &words, const TypeMark &mark, bool isUpperCaseText)
{
    constexpr double hint = 22;
    if (mark.strength == TypeStrength::Hint)
        return hint;
    double value = weightOfPlace(mark.start);
    const Word &first = words[mark.start];
    if (first.isUpperCase && !isUpperCaseText && first.folded.size() > 3)
        value += 30;
    if (first.isNewPart || mark.start == 0)
        value += 15;
    const bool isInSentence = mark.start > 0 && !first.isNewPart && !first.isCapitalised;
    if (isInSentence)
        value *= 0.3;
    if (mark.strength == TypeStrength::Ambiguous)
        value *= 0.6;
    return value;
}

std::optional<int> firstOf(const std::vector<LabelMark> &labels, Label label)
{
    const auto found
        = std::find_if(labels.begin(), labels.end(), [label](const LabelMark &mark) { return mark.label == label; });
    return found == labels.end() ? std::nullopt : std::optional(found->start);
}

/// What the frame of a letter weighs: salutation, closing, subject.
double letterWeight(const std::vector<LabelMark> &labels)
{
    const auto salutation = firstOf(labels, Label::Salutation);
    constexpr int latestSalutation = 130;
    if (!salutation || *salutation > latestSalutation)
        return 0;
    double value = 40;
    if (firstOf(labels, Label::Closing))
        value += 30;
    if (firstOf(labels, Label::Subject))
        value += 20;
    return value;
}

bool isInSubject(const TypeMark &mark, const std::vector<LabelMark> &labels)
{
    constexpr int longestSubject = 12;
    return std::any_of(labels.begin(), labels.end(), [&mark](const LabelMark &label) {
        return label.label == Label::Subject && label.end <= mark.start && mark.start - label.end < longestSubject;
    });
}

} // namespace

std::vector<TypeMark> findTypes(const Words &words, FilenameLanguage language)
{
    std::vector<TypeMark> marks;
    int position = 0;
    while (position < words.count()) {
        std::optional<TypeMark> best;
        knownTypes().forEachAt(words, position, [&](const KnownType &known, int end) {
            if (known.language == language && (!best || end > best->end))
                best = TypeMark { known.type, known.strength, known.language, known.phrase, position, end };
        });
        if (best)
            marks.push_back(*best);
        position = best ? best->end : position + 1;
    }
    return marks;
}

std::optional<ChosenType> documentType(
    const Words &words, const std::vector<TypeMark> &types, const std::vector<LabelMark> &labels)
{
    struct Candidate {
        double best = 0, sum = 0, bestWord = 0;
        std::optional<TypeMark> mark;
    };
    const bool isUpperCaseText = isMostlyUpperCase(words);
    const double letter = letterWeight(labels);
    std::map<DocumentType, Candidate> candidates;
    for (const TypeMark &mark : types) {
        const double value = weight(words, mark, isUpperCaseText) * (letter > 0 && isInSubject(mark, labels) ? 0.3 : 1);
        Candidate &candidate = candidates[mark.type];
        candidate.sum += value;
        candidate.best = std::max(candidate.best, value);
        if (mark.strength != TypeStrength::Hint && value > candidate.bestWord) {
            candidate.bestWord = value;
            candidate.mark = mark;
        }
    }
    // Repetition says a little: running text repeats what it is about.
    constexpr double repetition = 0.15;
    constexpr double leastWeight = 20;
    double bestValue = std::max(letter, leastWeight);
    std::optional<ChosenType> chosen;
    if (letter > 0)
        chosen = ChosenType { DocumentType::Letter, {} };
    for (const auto &[type, candidate] : candidates) {
        const double value = candidate.best + std::min(repetition * (candidate.sum - candidate.best), 25.0);
        if (value > bestValue) {
            bestValue = value;
            chosen = ChosenType { type, candidate.mark };
        }
    }
    return chosen;
}

} // namespace Varlo
