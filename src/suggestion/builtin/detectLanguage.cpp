// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "suggestion/builtin/detectLanguage.h"

#include "suggestion/builtin/findDocumentType.h"
#include "suggestion/builtin/PhraseIndex.h"
#include <algorithm>
#include <map>
#include <QSet>

namespace Varlo {

using namespace Qt::StringLiterals;

static const QSet<QString> &functionWords(FilenameLanguage language)
{
    static const std::map<FilenameLanguage, QSet<QString>> sets = [] {
        std::map<FilenameLanguage, QSet<QString>> filled;
        for (const Vocabulary *each : vocabularies()) {
            const QStringList words = each->functionWords.split(u'|');
            for (const QString &word : words)
                filled[each->language].insert(folded(word));
        }
        return filled;
    }();
    return sets.at(language);
}

FilenameLanguage detectLanguage(const Words &words, const std::vector<LabelMark> &labels)
{
    std::map<FilenameLanguage, int> points;
    for (const Vocabulary *each : vocabularies()) {
        const QSet<QString> &known = functionWords(each->language);
        int &sum = points[each->language];
        for (int index = 0; index < words.count(); ++index)
            sum += known.contains(words[index].folded) ? 2 : 0;
        // Receipts and tables have labels, hardly sentences.
        for (const LabelMark &mark : labels)
            sum += mark.language == each->language ? std::min(mark.end - mark.start, 2) : 0;
        const auto types = findTypes(words, each->language);
        sum += static_cast<int>(std::min<size_t>(types.size(), 5)) * 2;
    }
    const auto best = std::max_element(points.begin(), points.end(), [](const auto &a, const auto &b) {
        const bool prefersEnglish = b.first == FilenameLanguage::English;
        return a.second < b.second || (a.second == b.second && prefersEnglish);
    });
    return best->second > 0 ? best->first : FilenameLanguage::English;
}

} // namespace Varlo
