// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#define XML_DTD // shows the declarations of those functions that only an expat which knows DTDs has; Debian's does
#include "extraction/office/parseXML.h"

#include "extraction/office/decodeUtf8.h"
#include <algorithm>
#include <expat.h>
#include <memory>

namespace Varlo {

// No office program nests as deep; expat takes some 150 bytes a level, and a part has room for a million.
constexpr int deepestNesting = 1000;
constexpr qsizetype firstSlice = 64 * 1024; // bytes

namespace {
struct Parsing {
    XML_Parser parser;
    XMLHandler &handler;
    int depth = 0;
    bool isInCData = false;
    bool isStopped = false; // expat still tells the rest of what it is in

    void stop()
    {
        isStopped = true;
        XML_StopParser(parser, XML_FALSE);
    }
};
} // namespace

std::optional<QString> XMLAttributes::value(std::string_view name) const
{
    for (const char *const *at = m_namesAndValues; *at; at += 2) {
        if (name == *at)
            return decodeUtf8(at[1]);
    }
    return std::nullopt;
}

static void XMLCALL startElement(void *data, const char *name, const char **attributes)
{
    auto &parsing = *static_cast<Parsing *>(data);
    if (parsing.isStopped)
        return;
    if (++parsing.depth > deepestNesting)
        return parsing.stop();
    parsing.handler.startElement(name, XMLAttributes(attributes));
}

static void XMLCALL endElement(void *data, const char *name)
{
    auto &parsing = *static_cast<Parsing *>(data);
    if (parsing.isStopped)
        return;
    --parsing.depth;
    parsing.handler.endElement(name);
}

static void XMLCALL characters(void *data, const char *utf8, int size)
{
    auto &parsing = *static_cast<Parsing *>(data);
    if (parsing.isStopped || parsing.isInCData)
        return;
    if (parsing.handler.characters({ utf8, size }) == XMLHandler::Next::Stop)
        parsing.stop();
}

static void XMLCALL startCData(void *data) { static_cast<Parsing *>(data)->isInCData = true; }

static void XMLCALL endCData(void *data) { static_cast<Parsing *>(data)->isInCData = false; }

void parseXML(QByteArrayView document, XMLHandler &handler)
{
    const std::unique_ptr<XML_ParserStruct, decltype(&XML_ParserFree)> parser(
        XML_ParserCreate(nullptr), &XML_ParserFree);
    if (!parser)
        return;
    Parsing parsing { .parser = parser.get(), .handler = handler };
    XML_SetUserData(parser.get(), &parsing);
    XML_SetElementHandler(parser.get(), startElement, endElement);
    XML_SetCharacterDataHandler(parser.get(), characters);
    XML_SetCdataSectionHandler(parser.get(), startCData, endCData);
    // A default handler gets the references to entities in character data unexpanded. Attributes have no such switch:
    // there entities may add as many bytes as the document had so far. (The predefined ones count as well, so that a
    // factor below 1.25 would stop at "&lt;".)
    XML_SetDefaultHandler(parser.get(), [](void *, const char *, int) {});
    XML_SetBillionLaughsAttackProtectionActivationThreshold(parser.get(), 0);
    XML_SetBillionLaughsAttackProtectionMaximumAmplification(parser.get(), 2);
    // expat copies what it is given. Most handlers have enough after the first slice; each further one is as long as
    // all before, since a tag that goes on is read from its start again.
    XML_Status status = XML_STATUS_OK;
    for (qsizetype at = 0; at < document.size() && status == XML_STATUS_OK;) {
        const qsizetype size = std::min(std::max(at, firstSlice), document.size() - at);
        const bool isLast = at + size == document.size();
        status = XML_Parse(parser.get(), document.data() + at, static_cast<int>(size), isLast);
        at += size;
    }
}

} // namespace Varlo
