// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "suggestion/builtin/Words.h"

#include <algorithm>
#include <QSet>

namespace Varlo {

using namespace Qt::StringLiterals;

static bool isKept(QChar character)
{
    return character.isLetterOrNumber() || character == u'&' || character == u'/' || character == u'-'
        || character == u'@' || character == u'+';
}

QString folded(QStringView text)
{
    QString result;
    const QString decomposed = text.toString().normalized(QString::NormalizationForm_KD).toLower();
    result.reserve(decomposed.size());
    for (const QChar character : decomposed) {
        if (isKept(character))
            result.append(character);
    }
    // "c/" is how Spanish addresses abbreviate a street.
    while (result.size() > 1 && (result.endsWith(u'-') || (result.endsWith(u'/') && result != "c/"_L1)))
        result.chop(1);
    return result;
}

static const QString &openers()
{
    static const QString marks = u"([{<\"'“‘„«¿¡*_`"_s;
    return marks;
}

static const QString &closers()
{
    static const QString marks = u")]}>\"'”’»*_`"_s;
    return marks;
}

static bool isPartOfWord(QChar character) { return character.isLetterOrNumber() || character.isMark(); }

static bool isAbbreviation(const QString &word, QStringView raw)
{
    static const QSet<QString> known { u"mr"_s, u"mrs"_s, u"ms"_s, u"dr"_s, u"dra"_s, u"dhr"_s, u"mevr"_s, u"mw"_s,
        u"st"_s, u"sr"_s, u"sra"_s, u"srta"_s, u"sres"_s, u"co"_s, u"corp"_s, u"inc"_s, u"ltd"_s, u"zn"_s, u"ir"_s,
        u"drs"_s, u"ing"_s, u"no"_s, u"nr"_s, u"num"_s, u"tel"_s, u"fam"_s, u"cllr"_s, u"prof"_s, u"av"_s, u"avda"_s,
        u"bros"_s, u"hnos"_s, u"cia"_s, u"art"_s, u"geb"_s, u"incl"_s, u"excl"_s, u"imp"_s, u"pag"_s, u"ref"_s,
        u"col"_s, u"gebr"_s, u"da"_s, u"lda"_s, u"ldo"_s, u"lic"_s, u"arq"_s, u"sta"_s, u"sto"_s, u"llc"_s, u"attn"_s };
    return raw.contains(u'.') || word.size() == 1 || known.contains(word);
}

Words::Words(const QString &text)
    : m_text(text)
{
    qsizetype position = 0;
    while (position < text.size()) {
        if (text[position].isSpace()) {
            ++position;
            continue;
        }
        const qsizetype start = position;
        while (position < text.size() && !text[position].isSpace()) {
            const QChar character = text[position++];
            if (character == u'|')
                break;
            // "Datum:14-03-2025" is a label and its value, "https://" is not.
            const bool isLabelColon = character == u':' && position - start > 2 && text[position - 2].isLetter()
                && position < text.size() && text[position] != u'/';
            if (isLabelColon)
                break;
        }
        add(start, position);
    }
}

void Words::add(qsizetype start, qsizetype end)
{
    qsizetype first = start;
    while (first < end && !isPartOfWord(m_text[first]) && m_text[first] != u'&')
        ++first;
    if (first == end) {
        static const QString separators = u"|;-–—•·*#"_s;
        const QStringView mark = QStringView(m_text).sliced(start, end - start);
        const auto isSeparator = [](QChar character) { return separators.contains(character); };
        m_atSeparator = m_atSeparator || std::all_of(mark.begin(), mark.end(), isSeparator);
        if (!m_words.empty() && mark.contains(u':'))
            m_words.back().hasColon = true;
        return;
    }
    qsizetype last = end;
    while (last > first && !isPartOfWord(m_text[last - 1]) && m_text[last - 1] != u'&')
        --last;
    if (last < end && m_text[last] == u'/' && last - first == 1)
        ++last;

    Word word;
    word.start = first;
    word.end = std::max(last, first + 1);
    const QStringView core = QStringView(m_text).sliced(word.start, word.end - word.start);
    word.folded = folded(core);
    word.isNewPart = m_atSeparator || QStringView(m_text).sliced(start, first - start).contains(u'|');
    word.isOpened = first > start && openers().contains(m_text[first - 1]);
    const QStringView after = QStringView(m_text).sliced(word.end, end - word.end);
    word.hasColon = after.contains(u':');
    word.hasComma = after.contains(u',');
    word.keepsDot = after.startsWith(u'.') && isAbbreviation(word.folded, core);
    word.endsSentence = after.contains(u'!') || after.contains(u'?') || after.contains(u';')
        || (after.contains(u'.') && !word.keepsDot) || after.contains(u'…');
    word.isClosed = std::any_of(after.begin(), after.end(), [](QChar mark) { return closers().contains(mark); });
    word.hasDigit = std::any_of(core.begin(), core.end(), [](QChar character) { return character.isDigit(); });
    word.isCapitalised = core.front().isUpper();
    word.isUpperCase = core.size() > 1 && core.front().isLetter() && core.toString().toUpper() == core;
    // "med. dent.", "approx. ten": no sentence begins with a small letter.
    const bool goesOn = !m_words.empty() && core.front().isLower() && !word.isOpened;
    if (goesOn && m_words.back().end < text().size() && text()[m_words.back().end] == u'.' && !word.isNewPart)
        m_words.back().endsSentence = false;
    m_atSeparator = after.endsWith(u'|');
    m_words.push_back(std::move(word));
}

QString Words::joined(int from, int to) const
{
    if (from >= to)
        return {};
    const Word &last = (*this)[to - 1];
    const qsizetype start = (*this)[from].start;
    return m_text.sliced(start, last.end + (last.keepsDot ? 1 : 0) - start);
}

int Words::wordAt(qsizetype position) const
{
    const auto found = std::upper_bound(
        m_words.begin(), m_words.end(), position, [](qsizetype place, const Word &word) { return place < word.end; });
    return static_cast<int>(found - m_words.begin());
}

} // namespace Varlo
