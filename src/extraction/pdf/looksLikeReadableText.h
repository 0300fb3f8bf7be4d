// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringView>

namespace Varlo {

/// Tells language from what a broken font leaves of it (random letters, codes), for a text that arrives in pieces,
/// none of which ends inside a word: among the first 200 words of two or more letters at least 8 % must be common
/// English, Dutch or Spanish function words.
class ReadabilityTest {
public:
    void add(QStringView text);
    /// True when no further text can change the answer.
    [[nodiscard]] bool isDecided() const;
    [[nodiscard]] bool isPassed() const;

private:
    int m_words = 0;
    int m_commonWords = 0;
};

/// The test for a text at hand. Pure.
[[nodiscard]] bool looksLikeReadableText(QStringView text);

} // namespace Varlo
