// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "extraction/office/TextElementCollector.h"

#include "extraction/office/decodeUtf8.h"
#include "platform/Characters.h"

namespace Varlo {

// Half as many again as are kept, since much of it may be white space that is yet to be collapsed.
constexpr qsizetype mostCollectedCharacters = 12'000;

static bool isTextElement(std::string_view name) { return name == "t" || name.ends_with(":t"); }

void TextElementCollector::startElement(std::string_view name, const XMLAttributes &)
{
    if (!isTextElement(name))
        return;
    m_isInTextElement = true;
    m_texts.append(QString());
}

XMLHandler::Next TextElementCollector::characters(QByteArrayView utf8)
{
    if (!m_isInTextElement)
        return Next::GoOn;
    const QString string = decodeUtf8(utf8);
    m_texts.last() += string;
    // How far beyond the limit it is does not matter, so a piece of millions of characters is not counted to its end.
    m_collectedCount += countCharacters(string, mostCollectedCharacters + 1 - m_collectedCount);
    return m_collectedCount > mostCollectedCharacters ? Next::Stop : Next::GoOn;
}

void TextElementCollector::endElement(std::string_view name)
{
    if (isTextElement(name))
        m_isInTextElement = false;
}

} // namespace Varlo
