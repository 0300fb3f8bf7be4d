// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "suggestion/builtin/Reading.h"

#include "suggestion/builtin/detectLanguage.h"
#include <algorithm>

namespace Varlo {

using namespace Qt::StringLiterals;

template <typename Mark> static std::vector<int> beginnings(const std::vector<Mark> &marks, int count)
{
    std::vector<int> indexes(static_cast<size_t>(count), -1);
    for (size_t index = 0; index < marks.size(); ++index)
        indexes[static_cast<size_t>(marks[index].start)] = static_cast<int>(index);
    return indexes;
}

template <typename Mark> static std::vector<bool> covered(const std::vector<Mark> &marks, int count)
{
    std::vector<bool> isCovered(static_cast<size_t>(count));
    for (const Mark &mark : marks) {
        for (int word = mark.start; word < std::min(mark.end, count); ++word)
            isCovered[static_cast<size_t>(word)] = true;
    }
    return isCovered;
}

Reading::Reading(Source content)
    : source(std::move(content))
    , words(source.text)
    , language(detectLanguage(words, findLabels(words, FilenameLanguage::Auto)))
    , labels(findLabels(words, language))
    , types(findTypes(words, language))
    , dates(findDates(words, language))
    , amounts(findAmounts(words))
    , type(documentType(words, types, labels))
    , m_labelAt(beginnings(labels, words.count()))
    , m_typeAt(beginnings(types, words.count()))
    , m_isDate(covered(dates, words.count()))
    , m_isAmount(covered(amounts, words.count()))
{
    if (source.isEmail)
        type = ChosenType { DocumentType::Email, {} };
}

const LabelMark *Reading::labelAt(int word) const
{
    const int index = m_labelAt[static_cast<size_t>(word)];
    return index < 0 ? nullptr : &labels[static_cast<size_t>(index)];
}

const TypeMark *Reading::typeAt(int word) const
{
    const int index = m_typeAt[static_cast<size_t>(word)];
    return index < 0 ? nullptr : &types[static_cast<size_t>(index)];
}

bool Reading::isDateAt(int word) const { return m_isDate[static_cast<size_t>(word)]; }

bool Reading::isAmountAt(int word) const { return m_isAmount[static_cast<size_t>(word)]; }

bool Reading::isIdentifierAt(int word) const
{
    const Word &candidate = words[word];
    if (candidate.folded.contains(u'@'))
        return true;
    const QStringView raw = QStringView(words.text()).sliced(candidate.start, candidate.end - candidate.start);
    const bool isAddress = raw.startsWith("www."_L1) || raw.contains("://"_L1);
    constexpr qsizetype longestOrdinaryNumber = 6;
    return isAddress || (candidate.hasDigit && candidate.folded.size() > longestOrdinaryNumber);
}

} // namespace Varlo
