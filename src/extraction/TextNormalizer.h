// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "extraction/Extraction.h"
#include "extraction/normalizeExtractedText.h"
#include <array>
#include <QByteArrayView>
#include <QString>
#include <QStringDecoder>

namespace Varlo {

/// Normalizes a text that arrives as UTF-8 in chunks of any size, in memory that does not grow with it: what
/// normalizeExtractedText() would give for the whole, and NoTextFound where the whole is not UTF-8. A byte order mark
/// at the front is dropped.
class TextNormalizer {
public:
    TextNormalizer();

    /// Takes the next bytes; a chunk may end inside a character. False once the bytes so far cannot be the beginning of
    /// UTF-8 (RFC 3629), and from then on.
    [[nodiscard]] bool append(QByteArrayView bytes);
    /// True when no further text can change the outcome, as long as it is UTF-8.
    [[nodiscard]] bool hasEnough() const { return m_hasEnough; }
    /// The outcome for the bytes so far as the whole text.
    [[nodiscard]] Extraction finish() const;

private:
    bool appendWhole(QByteArrayView sequences);
    void keep(QByteArrayView utf8);
    void keepCollapsed(QStringView text);
    bool hasEnoughCharacters();

    QStringDecoder m_decoder { QStringDecoder::Utf8 };
    QString m_decoded; // room for one piece, so that none is allocated for each
    QString m_line; // without white space at the ends, every run of it one space
    std::array<char, 4> m_split {}; // the sequence that the latest chunk ended in
    qsizetype m_splitSize = 0;
    char16_t m_allUnits = 0; // each unit of m_line, by "or"
    qsizetype m_nextCount = mostTextCharacters + 1; // the units of m_line at which its characters are counted again
    bool m_isUtf8 = true;
    bool m_spaceIsDue = false;
    bool m_hasEnough = false;
};

} // namespace Varlo
