// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "extraction/office/importWordDocument.h"

#include "extraction/office/decodeUtf8.h"
#include "extraction/office/parseXML.h"
#include <filesystem>
#include <QUrl>
#include <vector>

using namespace Qt::StringLiterals;

namespace Varlo {

namespace {

/// Finds the part that a package is about (ECMA-376, part 2, section 9).
class MainPartFinder final : public XMLHandler {
public:
    void startElement(std::string_view name, const XMLAttributes &attributes) override;
    void endElement(std::string_view) override { }
    Next characters(QByteArrayView) override { return Next::GoOn; }

    [[nodiscard]] const std::optional<QString> &partName() const { return m_partName; }

private:
    std::optional<QString> m_partName;
};

/// Elements are told apart without their prefix: no two that matter here share a name.
class WordTextImporter final : public XMLHandler {
public:
    void startElement(std::string_view name, const XMLAttributes &attributes) override;
    void endElement(std::string_view name) override;
    Next characters(QByteArrayView utf8) override;

    [[nodiscard]] const QString &text() const { return m_text; }

private:
    bool isLeftOut(std::string_view localName);

    QString m_text;
    bool m_isInTextElement = false;
    int m_leftOutDepth = 0; // elements open from the outermost that is left out
    std::vector<bool> m_hasAlternative; // for each mc:AlternateContent that is open
};

} // namespace

static std::string_view withoutPrefix(std::string_view name) { return name.substr(name.find(':') + 1); }

void MainPartFinder::startElement(std::string_view name, const XMLAttributes &attributes)
{
    if (m_partName || withoutPrefix(name) != "Relationship" || attributes.value("TargetMode") == u"External"_s)
        return;
    const std::optional<QString> type = attributes.value("Type");
    const bool isMainPart
        = type == u"http://schemas.openxmlformats.org/officeDocument/2006/relationships/officeDocument"_s
        || type == u"http://purl.oclc.org/ooxml/officeDocument/relationships/officeDocument"_s;
    const std::optional<QString> target = attributes.value("Target");
    if (!isMainPart || !target)
        return;
    const QUrl root(u"file:///"_s);
    const QUrl part = root.resolved(QUrl(*target));
    if (!root.isParentOf(part))
        return;
    // A way that leads above the root stays there (RFC 3986, 5.2.4); Qt 6.8 leaves its dots in an address of a file.
    const std::filesystem::path path(part.path(QUrl::FullyDecoded).toStdString());
    m_partName = QString::fromStdString(path.lexically_normal().native()).mid(1);
}

bool WordTextImporter::isLeftOut(std::string_view localName)
{
    if (localName == "moveFrom")
        return true;
    const bool isAlternative = localName == "Choice" || localName == "Fallback";
    if (!isAlternative || m_hasAlternative.empty())
        return false;
    const bool isSecond = m_hasAlternative.back();
    m_hasAlternative.back() = true;
    return isSecond;
}

void WordTextImporter::startElement(std::string_view name, const XMLAttributes &)
{
    const std::string_view localName = withoutPrefix(name);
    if (m_leftOutDepth > 0 || isLeftOut(localName)) {
        ++m_leftOutDepth;
        return;
    }
    if (localName == "t")
        m_isInTextElement = true;
    else if (localName == "tab" || localName == "ptab" || localName == "br" || localName == "cr")
        m_text += u' ';
    else if (localName == "p") // a text box stands within a paragraph
        m_text += u'\n';
    else if (localName == "noBreakHyphen")
        m_text += u'\u2011';
    else if (localName == "AlternateContent")
        m_hasAlternative.push_back(false);
}

void WordTextImporter::endElement(std::string_view name)
{
    if (m_leftOutDepth > 0) {
        --m_leftOutDepth;
        return;
    }
    const std::string_view localName = withoutPrefix(name);
    if (localName == "t")
        m_isInTextElement = false;
    else if (localName == "p")
        m_text += u'\n';
    else if (localName == "AlternateContent")
        m_hasAlternative.pop_back();
}

XMLHandler::Next WordTextImporter::characters(QByteArrayView utf8)
{
    if (m_isInTextElement && m_leftOutDepth == 0)
        m_text += decodeUtf8(utf8);
    return Next::GoOn;
}

std::optional<QString> importWordDocument(OfficePackage &package)
{
    MainPartFinder finder;
    if (const std::optional<QByteArray> relationships = package.read(u"_rels/.rels"_s))
        parseXML(*relationships, finder);
    if (!finder.partName())
        return std::nullopt;
    const std::optional<QByteArray> mainPart = package.read(*finder.partName());
    if (!mainPart)
        return std::nullopt;
    WordTextImporter importer;
    parseXML(*mainPart, importer);
    return importer.text();
}

} // namespace Varlo
