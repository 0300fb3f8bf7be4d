// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "extraction/describe.h"
#include "extraction/office/buildZip.h"
#include "extraction/office/readPresentation.h"
#include "extraction/office/readSpreadsheet.h"
#include "extraction/office/readWordDocument.h"
#include <fcntl.h>
#include <QDirIterator>
#include <QTest>
#include <sys/mman.h>

using namespace Qt::StringLiterals;
using namespace Varlo;

class ReadOfficeDocumentsTest : public QObject {
    Q_OBJECT
private slots:
    void readsDocumentsOfOthers_data();
    void readsDocumentsOfOthers();
    void readsWordDocuments_data();
    void readsWordDocuments();
    void importsWordText_data();
    void importsWordText();
    void findsMainPart_data();
    void findsMainPart();
    void readsSpreadsheets_data();
    void readsSpreadsheets();
    void readsPresentations_data();
    void readsPresentations();
    void refuses_data();
    void refuses();
    void endsOnHostileArchives_data();
    void endsOnHostileArchives();
};

using Reader = Extraction (*)(const FileDescriptor &);

static const QString noText = u"no text found"_s;
static const QByteArray twenty = "twenty characters it"_ba;

static QString read(Reader reader, const QByteArray &bytes)
{
    const FileDescriptor file(::memfd_create("document", MFD_CLOEXEC));
    if (::write(file.get(), bytes.constData(), static_cast<size_t>(bytes.size())) != bytes.size())
        return u"could not be written"_s;
    return describe(reader(file));
}

static QByteArray texts(const QByteArrayList &texts) { return "<r><t>" + texts.join("</t><t>") + "</t></r>"; }

/// A package of parts by their names; each has its texts as text elements.
static QByteArray package(const QList<std::pair<QByteArray, QByteArrayList>> &parts)
{
    QList<ZipContent> contents;
    for (const auto &[name, textList] : parts)
        contents.append({ name, texts(textList) });
    return buildZip(contents);
}

// What LibreOffice, pandoc and a script wrote, beside the text that is in it.
void ReadOfficeDocumentsTest::readsDocumentsOfOthers_data()
{
    QTest::addColumn<QString>("path");
    const QString folder = QStringLiteral(VARLO_SOURCE_DIR "/tests/extraction/office/documents");
    for (QDirIterator files(folder, { u"*.docx"_s, u"*.xlsx"_s, u"*.pptx"_s }); files.hasNext();) {
        const QString path = files.next();
        QTest::newRow(qUtf8Printable(files.fileName())) << path;
    }
}

void ReadOfficeDocumentsTest::readsDocumentsOfOthers()
{
    QFETCH(QString, path);
    QFile expected(path + u".txt"_s);
    QVERIFY(expected.open(QIODevice::ReadOnly));
    const Reader reader = path.endsWith(u"docx") ? readWordDocument
        : path.endsWith(u"xlsx")                 ? readSpreadsheet
                                                 : readPresentation;
    const FileDescriptor file(::open(qUtf8Printable(path), O_RDONLY));
    QCOMPARE(describe(reader(file)), u"text: "_s + QString::fromUtf8(expected.readAll()).trimmed());
}

void ReadOfficeDocumentsTest::readsWordDocuments_data()
{
    QTest::addColumn<QByteArray>("archive");
    QTest::addColumn<QString>("outcome");
    const auto row = [](const char *name, const QList<std::pair<QByteArray, QByteArrayList>> &parts,
                         const QString &text) { QTest::newRow(name) << package(parts) << text; };
    const QString text = u"text: "_s + QString::fromUtf8(twenty);
    row("runs apart", { { "word/document.xml", { "twenty chara", "cters it" } } }, u"text: twenty chara cters it"_s);
    row("main part alone",
        { { "word/header1.xml", { "no" } }, { "word/document.xml", { twenty } }, { "word/footnotes.xml", { "no" } } },
        text);
    row("first of two", { { "word/document.xml", { twenty } }, { "word/document.xml", { twenty, "no" } } }, text);
    row("no other case", { { "Word/Document.xml", { twenty } } }, noText);
    row("short table", { { "word/document.xml", { "ab", "cd", "ef", "gh", "ijkl" } } }, noText);
    const ZipContent damaged { .name = "word/document.xml", .data = texts({ twenty }), .claimedSize = 1000 };
    QTest::newRow("says a wrong size") << buildZip({ damaged }) << noText;
}

void ReadOfficeDocumentsTest::readsWordDocuments()
{
    QFETCH(QByteArray, archive);
    QTEST(read(readWordDocument, archive), "outcome");
}

static QByteArray relationship(const QByteArray &type, const QByteArray &target, const QByteArray &more = {})
{
    return "<Relationship Id='r' Type='" + type + "' Target='" + target + "' " + more + "/>";
}

static const QByteArray transitional = "http://schemas.openxmlformats.org/officeDocument/2006/relationships/"_ba;
static const QByteArray strict = "http://purl.oclc.org/ooxml/officeDocument/relationships/"_ba;

static QByteArray documentElsewhere(
    const QByteArray &relationships, const QByteArray &name, const QByteArray &body, quint16 method = 8)
{
    return buildZip({ { "_rels/.rels", "<Relationships>" + relationships + "</Relationships>" },
        { name, "<w:document>" + body + "</w:document>", method } });
}

void ReadOfficeDocumentsTest::importsWordText_data()
{
    QTest::addColumn<QByteArray>("body");
    QTest::addColumn<QString>("text");
    const auto row
        = [](const char *name, const QByteArray &body, const QString &text) { QTest::newRow(name) << body << text; };
    row("runs of one word", "<w:r><w:t>In</w:t></w:r><w:r><w:t>voice</w:t></w:r>", u"Invoice"_s);
    row("paragraphs", "<w:p><w:t>a</w:t></w:p><w:p><w:t>b</w:t></w:p>", u"a b"_s);
    row("tabs and breaks",
        "<w:r><w:t>a</w:t><w:tab/><w:t>b</w:t><w:br/><w:t>c</w:t><w:cr/><w:t>d</w:t><w:ptab/><w:t>e</w:t></w:r>",
        u"a b c d e"_s);
    row("cells", "<w:tr><w:tc><w:p><w:t>a</w:t></w:p></w:tc><w:tc><w:p><w:t>b</w:t></w:p></w:tc></w:tr>", u"a b"_s);
    row("hyphen that does not break", "<w:t>a</w:t><w:noBreakHyphen/><w:t>b</w:t>", u"a\u2011b"_s);
    row("text box in a paragraph", "<w:p><w:t>a</w:t><v:textbox><w:p><w:t>b</w:t></w:p></v:textbox><w:t>c</w:t></w:p>",
        u"a b c"_s);
    row("first alternative",
        "<mc:AlternateContent><mc:Choice><w:t>a</w:t></mc:Choice><mc:Choice><w:t>b</w:t></mc:Choice>"
        "<mc:Fallback><w:p><w:t>c</w:t></w:p></mc:Fallback></mc:AlternateContent><w:t>d</w:t>",
        u"ad"_s);
    row("fallback where there is nothing else",
        "<mc:AlternateContent><mc:Fallback><w:t>a</w:t></mc:Fallback></mc:AlternateContent>", u"a"_s);
    row("alternatives in an alternative",
        "<mc:AlternateContent><mc:Choice><mc:AlternateContent><mc:Choice><w:t>a</w:t></mc:Choice>"
        "<mc:Fallback><w:t>b</w:t></mc:Fallback></mc:AlternateContent></mc:Choice>"
        "<mc:Fallback><mc:AlternateContent><mc:Choice><w:t>c</w:t></mc:Choice></mc:AlternateContent></mc:Fallback>"
        "</mc:AlternateContent><mc:AlternateContent><mc:Choice><w:t>d</w:t></mc:Choice></mc:AlternateContent>",
        u"ad"_s);
    row("alternatives of something else", "<x:Choice><w:t>a</w:t></x:Choice><x:Choice><w:t>b</w:t></x:Choice>",
        u"ab"_s);
    row("changes and fields",
        "<w:del><w:delText>a</w:delText></w:del><w:ins><w:t>b</w:t></w:ins><w:moveFrom><w:r><w:t>c</w:t></w:r>"
        "</w:moveFrom><w:moveTo><w:t>d</w:t></w:moveTo><w:instrText>e</w:instrText><w:delInstrText>f</w:delInstrText>",
        u"bd"_s);
    row("text outside of runs", "<w:p>a<w:t>b</w:t>c</w:p>", u"b"_s);
    row("other prefixes", "<p><t>a</t></p><x:p><x:t>b</x:t></x:p>", u"a b"_s);
    row("damaged", "<w:t>a</w:t><w:t>b</w:p>", u"ab"_s);
}

void ReadOfficeDocumentsTest::importsWordText()
{
    QFETCH(QByteArray, body);
    QFETCH(QString, text);
    const QByteArray archive = documentElsewhere(relationship(transitional + "officeDocument", "word/main.xml"),
        "word/main.xml", "<w:p><w:t>" + twenty + "</w:t></w:p>" + body);
    QCOMPARE(read(readWordDocument, archive), u"text: "_s + QString::fromUtf8(twenty) + u' ' + text);
}

void ReadOfficeDocumentsTest::findsMainPart_data()
{
    QTest::addColumn<QByteArray>("relationships");
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<bool>("isFound");
    const auto row = [](const char *name, const QByteArray &relationships, const QByteArray &partName,
                         bool isFound = true) { QTest::newRow(name) << relationships << partName << isFound; };
    const QByteArray type = transitional + "officeDocument";
    row("transitional", relationship(type, "main.xml"), "main.xml");
    row("strict", relationship(strict + "officeDocument", "main.xml"), "main.xml");
    row("from the root", relationship(type, "/word/main.xml"), "word/main.xml");
    row("by a detour", relationship(type, "./a/../word/main.xml"), "word/main.xml");
    row("name in percent", relationship(type, "t%C3%A9xt%20.xml"), "téxt .xml"_ba);
    row("not above the package", relationship(type, "../../main.xml"), "main.xml");
    row("behind others",
        relationship(transitional + "metadata/core-properties", "no.xml") + relationship(type, "main.xml"), "main.xml");
    row("first of two", relationship(type, "main.xml") + relationship(type, "no.xml"), "main.xml");
    row("not in the package", relationship(type, "main.xml", "TargetMode='External'"), "main.xml", false);
    row("said to be in it", relationship(type, "main.xml", "TargetMode='Internal'"), "main.xml");
    row("at another's", relationship(type, "http://example.com/main.xml"), "main.xml", false);
    row("of another kind", relationship(transitional + "extended-properties", "main.xml"), "main.xml", false);
    row("missing", relationship(type, "no.xml"), "main.xml", false);
    row("nowhere said", "", "main.xml", false);
}

void ReadOfficeDocumentsTest::findsMainPart()
{
    QFETCH(QByteArray, relationships);
    QFETCH(QByteArray, name);
    QFETCH(bool, isFound);
    const QByteArray archive = documentElsewhere(relationships, name, "<w:t>" + twenty + "</w:t>");
    QCOMPARE(read(readWordDocument, archive), isFound ? u"text: "_s + QString::fromUtf8(twenty) : noText);
}

void ReadOfficeDocumentsTest::readsSpreadsheets_data()
{
    QTest::addColumn<QByteArray>("archive");
    QTest::addColumn<QString>("outcome");
    const auto row = [](const char *name, const QList<std::pair<QByteArray, QByteArrayList>> &parts,
                         const QString &text) { QTest::newRow(name) << package(parts) << text; };
    const QByteArray letters(30, 'x');
    const QString thirty = QString::fromUtf8(letters);
    row("shared strings suffice", { { "xl/worksheets/sheet1.xml", { "no" } }, { "xl/sharedStrings.xml", { twenty } } },
        u"text: "_s + QString::fromUtf8(twenty));
    row("a character too few",
        { { "xl/worksheets/sheet1.xml", { letters } }, { "xl/sharedStrings.xml", { "19 characters, no m" } } },
        u"text: 19 characters, no m "_s + thirty);
    row("white space counts",
        { { "xl/worksheets/sheet1.xml", { letters } }, { "xl/sharedStrings.xml", QByteArrayList(21, "") } }, noText);
    row("characters are not bytes",
        { { "xl/worksheets/sheet1.xml", { letters } },
            { "xl/sharedStrings.xml", { "👩‍👩‍👧‍👦"_ba.repeated(19) } } },
        u"text: "_s + u"👩‍👩‍👧‍👦"_s.repeated(19) + u' ' + thirty);
    row("sheets in the order of their characters",
        { { "xl/worksheets/sheet2.xml", { "c", letters } }, { "xl/worksheets/sheet10.xml", { "b" } },
            { "xl/sharedStrings.xml", { "short" } }, { "xl/worksheets/sheet1.xml", { "a" } } },
        u"text: short a b c "_s + thirty);
    row("sheets alone", { { "xl/worksheets/sheet.xml", { letters } } }, u"text: "_s + thirty);
    row("no other parts",
        { { "xl/worksheets/_rels/sheet1.xml.rels", { letters } }, { "xl/worksheets/sheet1.bin", { letters } },
            { "xl/chartsheets/sheet1.xml", { letters } }, { "XL/worksheets/sheet1.xml", { letters } } },
        noText);
    row("a name twice is its first part twice",
        { { "xl/worksheets/s.xml", { "a", letters } }, { "xl/worksheets/s.xml", { "b" } } },
        u"text: a %1 a %1"_s.arg(thirty));
    // White space counts here, and is gone in the outcome.
    row("ends with 8000 characters",
        { { "xl/worksheets/1.xml", { QByteArray(7968, ' ') + letters } }, { "xl/worksheets/2.xml", { "" } },
            { "xl/worksheets/3.xml", { "no" } } },
        u"text: "_s + thirty);
    row("goes on with 7999 characters",
        { { "xl/worksheets/1.xml", { QByteArray(7967, ' ') + letters } }, { "xl/worksheets/2.xml", { "" } },
            { "xl/worksheets/3.xml", { "on" } } },
        u"text: "_s + thirty + u" on"_s);
    QTest::newRow("numbers and formulas")
        << buildZip({ { "xl/worksheets/s.xml", "<c><f>SUM(A1:A2)</f><v>12345678901234567890123</v></c>" } }) << noText;
    const ZipContent damaged { .name = "xl/sharedStrings.xml", .data = texts({ letters }), .claimedSize = 1000 };
    QTest::newRow("damaged shared strings") << buildZip({ damaged, { "xl/worksheets/s.xml", texts({ twenty }) } })
                                            << u"text: "_s + QString::fromUtf8(twenty);
    const ZipContent lost { .name = "xl/worksheets/1.xml", .data = texts({ letters }), .method = 99 };
    QTest::newRow("a sheet that cannot be read")
        << buildZip({ lost, { "xl/worksheets/s.xml", texts({ twenty }) } }) << u"text: "_s + QString::fromUtf8(twenty);
}

void ReadOfficeDocumentsTest::readsSpreadsheets()
{
    QFETCH(QByteArray, archive);
    QTEST(read(readSpreadsheet, archive), "outcome");
}

void ReadOfficeDocumentsTest::readsPresentations_data()
{
    QTest::addColumn<QByteArrayList>("slides");
    QTest::addColumn<QString>("outcome");
    const auto row = [](const char *name, const QByteArrayList &slides, const QString &outcome) {
        QTest::newRow(name) << slides << outcome;
    };
    row("by number", { "10", "2", "1" }, u"[1] [2] [10]"_s);
    row("no number comes first", { "1", "X", "" }, u"[X] [] [1]"_s);
    row("equal numbers stay", { "2b", "02", "2a", "1" }, u"[1] [2b] [02] [2a]"_s);
    row("other digits are no number", { "1", "\u0663"_ba, "3\u00B2"_ba, "4\U0001D7CF"_ba, "5一"_ba },
        u"[\u0663] [3\u00B2] [4\U0001D7CF] [5一] [1]"_s);
    row("number that is too large", { "9223372036854775807", "9223372036854775808" },
        u"[9223372036854775808] [9223372036854775807]"_s);
    row("signs are no numbers", { "1", "-5", "+7" }, u"[-5] [+7] [1]"_s);
}

void ReadOfficeDocumentsTest::readsPresentations()
{
    QFETCH(QByteArrayList, slides);
    QFETCH(QString, outcome);
    QList<std::pair<QByteArray, QByteArrayList>> parts { { "ppt/slides/_rels/slide1.xml.rels", { "no" } },
        { "ppt/notesSlides/notesSlide1.xml", { "no" } }, { "ppt/slideLayouts/slideLayout1.xml", { "no" } },
        { "ppt/slides/slide0.xml", { twenty } } };
    for (const QByteArray &slide : std::as_const(slides))
        parts.append({ "ppt/slides/slide" + slide + ".xml", { '[' + slide + ']' } });
    QCOMPARE(read(readPresentation, package(parts)), u"text: "_s + QString::fromUtf8(twenty) + u' ' + outcome);
}

void ReadOfficeDocumentsTest::refuses_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("empty") << ""_ba;
    QTest::newRow("Word 97") << "\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1"_ba + QByteArray(1000, 'x');
    QTest::newRow("HTML") << "<html><t>twenty characters and more</t></html>"_ba;
    QTest::newRow("archive of other things") << buildZip({ { "notes.xml", texts({ twenty }) } });
    QTest::newRow("archive in an archive") << buildZip({ { "word/document.xml", package({ { "t", { twenty } } }) },
        { "xl/sharedStrings.xml", package({ { "t", { twenty } } }) },
        { "ppt/slides/slide1.xml", package({ { "t", { twenty } } }) } });
}

void ReadOfficeDocumentsTest::refuses()
{
    QFETCH(QByteArray, bytes);
    const FileDescriptor closed;
    for (const Reader reader : { readWordDocument, readSpreadsheet, readPresentation }) {
        QCOMPARE(read(reader, bytes), noText);
        QCOMPARE(describe(reader(closed)), noText);
    }
}

/// As many slides as the format can count. What they have is in the archive once.
static QByteArray sharedParts(const ZipContent &content)
{
    const QByteArray alone = buildZip({ content });
    const auto streamSize = alone.indexOf("PK\1\2"_ba) - 30 - content.name.size();
    QList<ZipContent> contents { content };
    for (int number = 1; number < 65535; ++number) {
        contents.append({ .name = "ppt/slides/slide" + QByteArray::number(number) + ".xml",
            .data = {},
            .claimedSize = static_cast<quint32>(content.data.size()),
            .claimedCompressedSize = static_cast<quint32>(streamSize),
            .claimedOffset = 0,
            .stream = QByteArray() });
    }
    return buildZip(contents);
}

// Read to their ends, these would take minutes and tens of gigabytes.
void ReadOfficeDocumentsTest::endsOnHostileArchives_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("outcome");
    constexpr qsizetype partSize = 4 << 20;
    const QByteArray text = "<r><t>"_ba + twenty + "</t>";
    QByteArray attributes = text + "<r";
    for (int number = 0; attributes.size() < partSize - 20; ++number)
        attributes += " a" + QByteArray::number(number, 36) + "=''";
    const QString once = QString::fromUtf8(twenty);
    const auto row = [](const char *name, const QByteArray &part, const QString &text) {
        QTest::newRow(name) << part.leftJustified(partSize) << text;
    };
    QTest::newRow("small parts") << text << u"text: "_s + (once + u' ').repeated(381).first(8000);
    row("nothing in large parts", ""_ba, noText);
    row("many attributes", attributes + "/></r>", u"text: "_s + (once + u' ').repeated(16).trimmed());
    row("endless characters", "<r><t>" + twenty + 'x' + "\u0301"_ba.repeated(partSize / 2 - 100) + "</t></r>",
        u"text: "_s + once);
    row("very many texts", text + "<t/>"_ba.repeated(partSize / 4 - 100) + "</r>", u"text: "_s + once);
}

void ReadOfficeDocumentsTest::endsOnHostileArchives()
{
    QFETCH(QByteArray, content);
    QTEST(read(readPresentation, sharedParts({ "ppt/slides/slide0.xml", content })), "outcome");
}

QTEST_GUILESS_MAIN(ReadOfficeDocumentsTest)
#include "tst_readOfficeDocuments.moc"
