// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "suggestion/builtin/mixedCaseForm.h"

#include "suggestion/builtin/Vocabulary.h"

namespace Varlo {

/// Legal forms and single letters are written in capitals in any case.
static bool saysNothing(const Word &word)
{
    return word.folded.size() < 3 || isLegalForm(word.folded) || isConnector(word.folded);
}

static bool isInCapitals(const Words &words, int start, int end)
{
    bool hasLongWord = false;
    for (int index = start; index < end; ++index) {
        if (saysNothing(words[index]))
            continue;
        if (!words[index].isUpperCase)
            return false;
        hasLongWord = true;
    }
    return hasLongWord;
}

static bool isMixedCaseAt(const Words &words, int position, const FoundName &name)
{
    bool hasSmallLetters = false;
    for (int offset = 0; offset < name.end - name.start; ++offset) {
        const Word &word = words[position + offset];
        if (word.folded != words[name.start + offset].folded)
            return false;
        if (!word.isCapitalised && !isConnector(word.folded) && !isLegalForm(word.folded))
            return false;
        hasSmallLetters = hasSmallLetters || (!saysNothing(word) && !word.isUpperCase);
    }
    return hasSmallLetters;
}

QString mixedCaseForm(const Words &words, const FoundName &name)
{
    const int length = name.end - name.start;
    const bool isLong = length > 1 || words[name.start].folded.size() > 4;
    if (!isLong || !isInCapitals(words, name.start, name.end))
        return name.text;
    for (int position = 0; position + length <= words.count(); ++position) {
        if (isMixedCaseAt(words, position, name))
            return words.joined(position, position + length);
    }
    return name.text;
}

} // namespace Varlo
