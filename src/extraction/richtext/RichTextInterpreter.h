// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "extraction/richtext/ByteDecoder.h"
#include "extraction/richtext/codePages.h"
#include "extraction/richtext/controlWords.h"
#include "extraction/richtext/RichTextScanner.h"
#include "extraction/TextNormalizer.h"
#include <map>
#include <QStringEncoder>
#include <vector>

namespace Varlo {

/// Collects the text of a Rich Text Format file from its tokens.
class RichTextInterpreter {
public:
    RichTextInterpreter();

    void take(const RichTextToken &token);
    /// True when no further token can change the outcome: the document is closed, or its text is long enough.
    [[nodiscard]] bool hasEnded() const { return m_isClosed || m_normalizer.hasEnough(); }
    [[nodiscard]] Extraction finish();

private:
    /// What holds until the group ends.
    struct Group {
        Destination destination = Destination::Text;
        std::optional<int> font; // else the default one
        int fallbackLength = 1; // how many characters behind each \u stand for it to readers without Unicode
        bool isHidden = false;
        bool isDeleted = false;
        bool isApart = false;
    };

    void openGroup();
    void closeGroup();
    void takeWord(const ControlWord &word);
    void takeSymbol(char symbol);
    void takeText(QByteArrayView bytes);

    void enter(const MeansDestination &meaning);
    void apply(Setting setting, std::optional<int> parameter);
    void defineFont(int codePage);
    void takeUnicode(int parameter);

    Group &group() { return m_groups.back(); }
    [[nodiscard]] bool isShown() const;
    bool isFallback();
    [[nodiscard]] int codePage() const;
    void appendCharacter(char16_t character);
    void appendCodePoint(char32_t codePoint);
    void passOn();

    std::vector<Group> m_groups; // the innermost last
    qint64 m_deeperGroups = 0; // open ones beyond those, passed over
    int m_fallbackLeft = 0;
    bool m_isOptional = false; // behind \*, which marks a destination that old readers may skip
    bool m_isClosed = false;

    int m_documentCodePage = westernCodePage;
    int m_defaultFont = 0;
    std::map<int, int> m_codePages; // of the fonts that have one of their own

    ByteDecoder m_decoder;
    QString m_text; // not passed on yet
    QStringEncoder m_encoder { QStringEncoder::Utf8 };
    TextNormalizer m_normalizer;
};

} // namespace Varlo
