// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "extraction/pdf/looksLikeReadableText.h"

#include <algorithm>
#include <array>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace Varlo {

constexpr int wordsExamined = 200;
constexpr double leastCommonShare = 0.08;

static constexpr std::array<QStringView, 55> commonWords { // English
    u"the", u"and", u"of", u"to", u"in", u"for", u"is", u"on", u"with", u"this", u"that", u"you", u"your", u"from",
    u"are", u"not", u"be", u"at", u"will",
    // Dutch
    u"de", u"het", u"een", u"en", u"van", u"voor", u"met", u"niet", u"aan", u"dat", u"je", u"op", u"te", u"als", u"bij",
    u"naar", u"door", u"wordt",
    // Spanish
    u"el", u"la", u"los", u"las", u"del", u"un", u"una", u"para", u"con", u"por", u"que", u"no", u"es", u"se", u"su",
    u"al", u"como", u"más"
};

void ReadabilityTest::add(QStringView text)
{
    // A letter goes with its accents, which may be written apart from it. Possessive, since a run may have millions.
    static const QRegularExpression word(u"(?:\\p{L}\\p{M}*+){2,}+"_s);
    const QString lower = isDecided() ? QString() : text.toString().toLower();
    for (auto words = word.globalMatch(lower); !isDecided() && words.hasNext(); ++m_words) {
        const QString composed = words.next().captured().normalized(QString::NormalizationForm_C);
        m_commonWords += std::find(commonWords.begin(), commonWords.end(), composed) != commonWords.end() ? 1 : 0;
    }
}

bool ReadabilityTest::isDecided() const { return m_words == wordsExamined; }

bool ReadabilityTest::isPassed() const
{
    return m_words > 0 && static_cast<double>(m_commonWords) / m_words >= leastCommonShare;
}

bool looksLikeReadableText(QStringView text)
{
    ReadabilityTest test;
    test.add(text);
    return test.isPassed();
}

} // namespace Varlo
