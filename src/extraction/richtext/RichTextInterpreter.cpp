// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "extraction/richtext/RichTextInterpreter.h"

#include "platform/Result.h"
#include <algorithm>

namespace Varlo {

constexpr size_t deepestGroup = 1000; // documents stay below fifty
constexpr size_t mostFonts = 20'000; // documents stay below a thousand
constexpr qsizetype enoughToPassOn = 4096;

RichTextInterpreter::RichTextInterpreter()
{
    m_groups.reserve(deepestGroup);
    m_groups.emplace_back();
    m_text.reserve(2 * enoughToPassOn);
}

void RichTextInterpreter::take(const RichTextToken &token)
{
    std::visit(Overloaded { [this](GroupStart) { openGroup(); }, [this](GroupEnd) { closeGroup(); },
                   [this](const ControlWord &word) { takeWord(word); },
                   [this](ControlSymbol symbol) { takeSymbol(symbol.symbol); },
                   [this](CodedText text) { takeText(text.bytes); }, [](EndOfFile) {} },
        token);
    if (m_text.size() >= enoughToPassOn)
        passOn();
}

Extraction RichTextInterpreter::finish()
{
    m_decoder.endRun(m_text);
    m_text += u' '; // settles half a surrogate pair, which the encoder would wait for, and is trimmed
    passOn();
    return m_normalizer.finish();
}

void RichTextInterpreter::openGroup()
{
    m_fallbackLeft = 0;
    m_isOptional = false;
    if (m_groups.size() == deepestGroup) {
        ++m_deeperGroups;
        return;
    }
    m_groups.push_back(group());
    group().isApart = false;
}

void RichTextInterpreter::closeGroup()
{
    m_fallbackLeft = 0;
    m_isOptional = false;
    if (m_deeperGroups > 0) {
        --m_deeperGroups;
        return;
    }
    if (group().isApart)
        appendCharacter(u'\n');
    m_groups.pop_back();
    m_isClosed = m_groups.size() == 1;
}

void RichTextInterpreter::takeWord(const ControlWord &word)
{
    const bool isOptional = std::exchange(m_isOptional, false);
    if (m_deeperGroups > 0)
        return;
    const auto meaning = meaningOf(word.name);
    if (isOptional && (!meaning || !std::holds_alternative<MeansDestination>(*meaning)))
        return enter({ Destination::Skipped });
    if (!meaning)
        return;
    std::visit(Overloaded {
                   [this](MeansCharacter meant) {
                       if (meant.character == u'\n') // no writer means it as a fallback: it forgot that
                           m_fallbackLeft = 0;
                       if (!isFallback())
                           appendCharacter(meant.character);
                   },
                   [this](MeansDestination destination) { enter(destination); },
                   [&](MeansDocumentCodePage named) {
                       m_documentCodePage = named.codePage.value_or(word.parameter.value_or(westernCodePage));
                   },
                   [&](Setting setting) { apply(setting, word.parameter); },
               },
        *meaning);
}

void RichTextInterpreter::enter(const MeansDestination &meaning)
{
    if (group().destination == Destination::Skipped)
        return;
    group().destination = meaning.destination;
    group().isApart = meaning.isApart;
    if (meaning.isApart)
        appendCharacter(u'\n');
}

void RichTextInterpreter::apply(Setting setting, std::optional<int> parameter)
{
    const bool isOn = parameter != 0;
    switch (setting) {
    case Setting::Font:
        group().font = parameter;
        return;
    case Setting::DefaultFont:
        m_defaultFont = parameter.value_or(0);
        return;
    case Setting::FontCharset:
        if (const auto codePage = codePageOfCharset(parameter.value_or(1)))
            defineFont(*codePage);
        return;
    case Setting::FontCodePage:
        defineFont(parameter.value_or(westernCodePage));
        return;
    case Setting::UnicodeCharacter:
        takeUnicode(parameter.value_or(0));
        return;
    case Setting::UnicodeFallbackLength:
        group().fallbackLength = std::max(parameter.value_or(1), 0);
        return;
    case Setting::Hidden:
        group().isHidden = isOn;
        return;
    case Setting::Deleted:
        group().isDeleted = isOn;
        return;
    case Setting::PlainCharacters:
        group().font.reset();
        group().isHidden = false;
        group().isDeleted = false;
        return;
    case Setting::BinaryData:
        (void)isFallback(); // counts as one character, however long it is
        return;
    }
    Q_UNREACHABLE();
}

void RichTextInterpreter::defineFont(int codePage)
{
    if (group().destination != Destination::FontTable || !group().font)
        return;
    if (m_codePages.size() < mostFonts)
        m_codePages.insert_or_assign(*group().font, codePage);
}

void RichTextInterpreter::takeUnicode(int parameter)
{
    m_fallbackLeft = group().fallbackLength;
    // Numbers of 16 bits are written with a sign. Some writers give a character beyond in one number.
    const int codePoint = parameter < 0 ? parameter + 0x10000 : parameter;
    const bool isCodePoint = codePoint >= 0 && codePoint <= static_cast<int>(QChar::LastValidCodePoint);
    appendCodePoint(static_cast<char32_t>(isCodePoint ? codePoint : QChar::ReplacementCharacter));
}

void RichTextInterpreter::takeSymbol(char symbol)
{
    if (symbol == '*') {
        m_isOptional = true;
        return;
    }
    m_isOptional = false;
    if (m_deeperGroups > 0 || isFallback())
        return;
    switch (symbol) {
    case '~':
        return appendCharacter(QChar::Nbsp);
    case '_':
        return appendCharacter(u'\u2011');
    case '\n':
    case '\r':
        return appendCharacter(u'\n');
    case '\t':
        return appendCharacter(u'\t');
    default: // as \-, where a word may be broken
        return;
    }
}

void RichTextInterpreter::takeText(QByteArrayView bytes)
{
    m_isOptional = false;
    const qsizetype fallback = std::min<qsizetype>(m_fallbackLeft, bytes.size());
    m_fallbackLeft -= static_cast<int>(fallback);
    if (isShown())
        m_decoder.append(bytes.sliced(fallback), codePage(), m_text);
}

bool RichTextInterpreter::isShown() const
{
    const Group &group = m_groups.back();
    return m_deeperGroups == 0 && group.destination == Destination::Text && !group.isHidden && !group.isDeleted;
}

/// Whether the character in hand only stands for the \u before it.
bool RichTextInterpreter::isFallback()
{
    if (m_fallbackLeft == 0)
        return false;
    --m_fallbackLeft;
    return true;
}

int RichTextInterpreter::codePage() const
{
    const auto found = m_codePages.find(m_groups.back().font.value_or(m_defaultFont));
    return found == m_codePages.end() ? m_documentCodePage : found->second;
}

void RichTextInterpreter::appendCharacter(char16_t character) { appendCodePoint(character); }

void RichTextInterpreter::appendCodePoint(char32_t codePoint)
{
    if (!isShown())
        return;
    m_decoder.endRun(m_text);
    // Where Windows puts the pictures of fonts like Symbol and Wingdings.
    const bool isPictogram = codePoint >= 0xF000 && codePoint <= 0xF0FF;
    m_text += QChar::fromUcs4(isPictogram ? pictogramCharacter : codePoint);
}

void RichTextInterpreter::passOn()
{
    const QByteArray utf8 = m_encoder.encode(m_text);
    (void)m_normalizer.append(utf8);
    m_text.resize(0);
}

} // namespace Varlo
