// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "suggestion/builtin/Words.h"
#include <QHash>
#include <QStringList>

namespace Varlo {

/// Phrases of one or more words with what they mean, found by their first word: looking up a text takes linear time.
template <typename Meaning> class PhraseIndex {
public:
    void insert(const QString &phrase, const Meaning &meaning)
    {
        QStringList foldedWords;
        const QStringList pieces = phrase.split(u' ', Qt::SkipEmptyParts);
        for (const QString &piece : pieces) {
            const QString word = folded(piece);
            if (!word.isEmpty())
                foldedWords.append(word);
        }
        if (!foldedWords.isEmpty())
            m_entries[foldedWords.first()].append({ foldedWords, meaning });
    }

    /// Calls `take(meaning, end)` for every phrase that begins at this word. No phrase goes on behind a colon.
    template <typename Take> void forEachAt(const Words &words, int start, const Take &take) const
    {
        const auto found = m_entries.constFind(words[start].folded);
        if (found == m_entries.constEnd())
            return;
        for (const Entry &entry : *found) {
            const int end = start + static_cast<int>(entry.words.size());
            if (end <= words.count() && matches(words, start, entry.words))
                take(entry.meaning, end);
        }
    }

private:
    struct Entry {
        QStringList words;
        Meaning meaning;
    };
    static bool matches(const Words &words, int start, const QStringList &wanted)
    {
        for (int index = 1; index < wanted.size(); ++index) {
            const bool isBroken = words[start + index - 1].hasColon || words[start + index].isNewPart;
            if (isBroken || words[start + index].folded != wanted[index])
                return false;
        }
        return true;
    }

    QHash<QString, QList<Entry>> m_entries;
};

} // namespace Varlo
