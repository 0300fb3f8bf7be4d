// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <vector>

namespace Varlo {

/// Lower case, without accents and dots, so that "N.º", "No" and "nº" are one word and OCR's lost accents do no harm.
[[nodiscard]] QString folded(QStringView text);

struct Word {
    qsizetype start = 0, end = 0; ///< in the text, without the punctuation around it
    QString folded;
    bool isNewPart = false; ///< a separator (| ; a lone dash, a bullet) stands before it
    bool isOpened = false; ///< a bracket or a quotation mark stands before it
    bool hasColon = false, hasComma = false; ///< stands after it
    bool endsSentence = false;
    bool isClosed = false; ///< a bracket or a quotation mark stands after it
    bool hasDigit = false;
    bool isCapitalised = false; ///< begins with a capital letter
    bool isUpperCase = false; ///< two letters or more, all capital
    bool keepsDot = false; ///< an abbreviation: its dot belongs to it
};

/// A text of one line cut into words. The text must outlive it.
class Words {
public:
    explicit Words(const QString &text);

    [[nodiscard]] const QString &text() const { return m_text; }
    [[nodiscard]] int count() const { return static_cast<int>(m_words.size()); }
    [[nodiscard]] const Word &operator[](int index) const { return m_words[static_cast<size_t>(index)]; }
    /// The text from one word up to, not including, another, as it stands.
    [[nodiscard]] QString joined(int from, int to) const;
    /// The first word that ends behind this place in the text.
    [[nodiscard]] int wordAt(qsizetype position) const;

private:
    void add(qsizetype start, qsizetype end);

    const QString &m_text;
    std::vector<Word> m_words;
    bool m_atSeparator = false;
};

} // namespace Varlo
