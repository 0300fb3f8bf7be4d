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

using Reader = Extraction (*)(const FileDescriptor &);
Q_DECLARE_METATYPE(Reader)

class ReadOfficeDocumentsTest : public QObject {
    Q_OBJECT
private slots:
    void readsDocumentsOfOthers_data();
    void readsDocumentsOfOthers();
    void reads_data();
    void reads();
    void importsWordText_data();
    void importsWordText();
    void findsMainPart_data();
    void findsMainPart();
    void sortsSlides_data();
    void sortsSlides();
    void endsOnHostileArchives_data();
    void endsOnHostileArchives();
};

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

/// The parts of a package by their names; each has its texts as text elements.
using Parts = QList<std::pair<QByteArray, QByteArrayList>>;

static QByteArray package(const Parts &parts)
{
    QList<ZipContent> contents;
    for (const auto &[name, textList] : parts)
        contents.append({ name, texts(textList) });
    return buildZip(contents);
}

// What LibreOffice, pandoc and a script wrote, beside the text that is in it.
void ReadOfficeDocumentsTest::readsDocumentsOfOthers_data()
{
    QTest::addColumn<Reader>("reader");
    QTest::addColumn<QString>("path");
    const std::pair<QString, Reader> kinds[]
        = { { u"*.docx"_s, readWordDocument }, { u"*.xlsx"_s, readSpreadsheet }, { u"*.pptx"_s, readPresentation } };
    for (const auto &[names, reader] : kinds) {
        QDirIterator files(QStringLiteral(VARLO_SOURCE_DIR "/tests/extraction/office/documents"), { names });
        while (files.hasNext()) {
            const QString path = files.next();
            QTest::newRow(qUtf8Printable(files.fileName())) << reader << path;
        }
    }
}

void ReadOfficeDocumentsTest::readsDocumentsOfOthers()
{
    QFETCH(Reader, reader);
    QFETCH(QString, path);
    QFile expected(path + u".txt"_s);
    QVERIFY(expected.open(QIODevice::ReadOnly));
    const FileDescriptor file(::open(qUtf8Printable(path), O_RDONLY));
    QCOMPARE(describe(reader(file)), u"text: "_s + QString::fromUtf8(expected.readAll()).trimmed());
}

void ReadOfficeDocumentsTest::reads_data()
{
    QTest::addColumn<Reader>("reader");
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("text");
    const QString once = QString::fromUtf8(twenty);
    const auto docx = [](const char *name, const Parts &parts, const QString &text) {
        QTest::newRow(name) << Reader(readWordDocument) << package(parts) << text;
    };
    docx("runs apart", { { "word/document.xml", { "twenty chara", "cters it" } } }, u"twenty chara cters it"_s);
    docx("main part alone", { { "word/header1.xml", { "no" } }, { "word/document.xml", { twenty } } }, once);
    docx("no other case", { { "Word/Document.xml", { twenty } } }, {});
    docx("short table", { { "word/document.xml", { "ab", "cd", "ef", "gh", "ijkl" } } }, {});

    const auto xlsx = [](const char *name, const QByteArrayList &shared, const Parts &sheets, const QString &text) {
        Parts parts;
        for (const auto &[sheet, textList] : sheets)
            parts.append({ "xl/worksheets/" + sheet, textList });
        parts.append({ "xl/sharedStrings.xml", shared });
        QTest::newRow(name) << Reader(readSpreadsheet) << package(parts) << text;
    };
    const QByteArray nineteen = "19 characters, no m";
    xlsx("shared strings suffice", { twenty }, { { "sheet1.xml", { "no" } } }, once);
    xlsx("a character too few", { nineteen }, { { "sheet1.xml", { "on" } } }, u"19 characters, no m on"_s);
    xlsx("units do not count", { "👩‍👩‍👧‍👦"_ba.repeated(19) }, { { "s.xml", { "on" } } },
        u"👩‍👩‍👧‍👦"_s.repeated(19) + u" on"_s);
    xlsx("sheets in the order of their characters", { "short" },
        { { "sheet2.xml", { "c", twenty } }, { "sheet10.xml", { "b" } }, { "sheet1.xml", { "a" } } },
        u"short a b c "_s + once);
    xlsx("no other parts", { nineteen }, { { "_rels/sheet1.xml.rels", { twenty } }, { "sheet1.bin", { twenty } } }, {});
    xlsx("a name twice is its first part twice", {}, { { "s.xml", { "a", twenty } }, { "s.xml", { "b" } } },
        u"a %1 a %1"_s.arg(once));
    // White space counts here, and is gone in the outcome.
    xlsx("ends with 8000 characters", {},
        { { "1.xml", { QByteArray(7978, ' ') + twenty } }, { "2.xml", { "" } }, { "3.xml", { "no" } } }, once);
    xlsx("goes on with 7999 characters", {},
        { { "1.xml", { QByteArray(7977, ' ') + twenty } }, { "2.xml", { "" } }, { "3.xml", { "on" } } },
        once + u" on"_s);

    const QByteArray sheet = texts({ twenty });
    const ZipContent damaged { .name = "xl/sharedStrings.xml", .data = sheet, .claimedSize = 1000 };
    const ZipContent lost { .name = "xl/worksheets/1.xml", .data = sheet, .method = 99 };
    QTest::newRow("parts that cannot be read")
        << Reader(readSpreadsheet) << buildZip({ damaged, lost, { "xl/worksheets/s.xml", sheet } }) << once;
    for (const Reader reader : { readWordDocument, readSpreadsheet, readPresentation }) {
        QTest::newRow("empty") << reader << ""_ba << QString();
        QTest::newRow("Word 97") << reader << "\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1"_ba + QByteArray(999, 'x') << QString();
        QTest::newRow("HTML") << reader << "<html>"_ba + sheet << QString();
    }
}

void ReadOfficeDocumentsTest::reads()
{
    QFETCH(Reader, reader);
    QFETCH(QByteArray, bytes);
    QFETCH(QString, text);
    QCOMPARE(read(reader, bytes), text.isEmpty() ? noText : u"text: "_s + text);
    QCOMPARE(describe(reader(FileDescriptor())), noText);
}

static const QByteArray transitional = "http://schemas.openxmlformats.org/officeDocument/2006/relationships/"_ba;
static const QByteArray strict = "http://purl.oclc.org/ooxml/officeDocument/relationships/"_ba;

static QByteArray relationship(const QByteArray &type, const QByteArray &target, const QByteArray &more = {})
{
    return "<Relationship Id='r' Type='" + type + "' Target='" + target + "' " + more + "/>";
}

/// The text of a document whose main part has another name than Word gives it.
static QString imported(const QByteArray &relationships, const QByteArray &name, const QByteArray &body)
{
    return read(readWordDocument,
        buildZip({ { "_rels/.rels", "<Relationships>" + relationships + "</Relationships>" },
            { name, "<w:document>" + body + "</w:document>" } }));
}

// Here <a> stands for a text element with the text a, and so on.
void ReadOfficeDocumentsTest::importsWordText_data()
{
    QTest::addColumn<QByteArray>("body");
    QTest::addColumn<QString>("text");
    const auto row
        = [](const char *name, const QByteArray &body, const QString &text) { QTest::newRow(name) << body << text; };
    row("runs of one word", "<w:r><a></w:r><w:r><b></w:r>", u"ab"_s);
    row("paragraphs", "<w:p><a></w:p><w:p><b></w:p>", u"a b"_s);
    row("tabs and breaks", "<a><w:tab/><b><w:br/><c><w:cr/><d><w:ptab/><e>", u"a b c d e"_s);
    row("text box in a paragraph", "<w:p><a><v:textbox><w:p><b></w:p></v:textbox><c></w:p>", u"a b c"_s);
    row("first alternative",
        "<mc:AlternateContent><mc:Choice><a></mc:Choice><mc:Choice><b></mc:Choice><mc:Fallback><w:p><c></w:p>"
        "</mc:Fallback></mc:AlternateContent><d>",
        u"ad"_s);
    row("nothing but a fallback", "<mc:AlternateContent><mc:Fallback><a></mc:Fallback></mc:AlternateContent>", u"a"_s);
    row("alternatives in both alternatives",
        "<mc:AlternateContent><mc:Choice><mc:AlternateContent><mc:Choice><a></mc:Choice><mc:Fallback><b></mc:Fallback>"
        "</mc:AlternateContent></mc:Choice><mc:Fallback><mc:AlternateContent><mc:Choice><c></mc:Choice>"
        "</mc:AlternateContent></mc:Fallback></mc:AlternateContent>"
        "<mc:AlternateContent><mc:Choice><d></mc:Choice></mc:AlternateContent>",
        u"ad"_s);
    row("changes and fields",
        "<w:del><w:delText>x</w:delText></w:del><w:ins><b></w:ins><w:moveFrom><w:r><c></w:r></w:moveFrom>"
        "<w:moveTo><d></w:moveTo><w:instrText>x</w:instrText>",
        u"bd"_s);
    row("other prefixes", "<p><t>a</t></p><x:p><x:t>b</x:t></x:p>", u"a b"_s);
}

void ReadOfficeDocumentsTest::importsWordText()
{
    QFETCH(QByteArray, body);
    QFETCH(QString, text);
    for (const QByteArray letter : { "a", "b", "c", "d", "e" })
        body.replace('<' + letter + '>', "<w:t>" + letter + "</w:t>");
    const QString outcome = imported(relationship(transitional + "officeDocument", "main.xml"), "main.xml",
        "<w:p><w:t>" + twenty + "</w:t></w:p>" + body);
    QCOMPARE(outcome, u"text: "_s + QString::fromUtf8(twenty) + u' ' + text);
}

void ReadOfficeDocumentsTest::findsMainPart_data()
{
    QTest::addColumn<QByteArray>("relationships");
    QTest::addColumn<QByteArray>("name");
    const auto row = [](const char *name, const QByteArray &relationships, const QByteArray &partName) {
        QTest::newRow(name) << relationships << partName;
    };
    const QByteArray type = transitional + "officeDocument";
    row("transitional", relationship(type, "main.xml"), "main.xml");
    row("strict", relationship(strict + "officeDocument", "main.xml"), "main.xml");
    row("from the root", relationship(type, "/word/main.xml"), "word/main.xml");
    row("by a detour above the root", relationship(type, "./a/../../word/main.xml"), "word/main.xml");
    row("name in percent", relationship(type, "t%C3%A9xt%20.xml"), "téxt .xml"_ba);
    row("first of its kind",
        relationship(transitional + "extended-properties", "no.xml") + relationship(type, "main.xml")
            + relationship(type, "no.xml"),
        "main.xml");
    row("in the package", relationship(type, "main.xml", "TargetMode='Internal'"), "main.xml");
    row("no: outside", relationship(type, "main.xml", "TargetMode='External'"), "main.xml");
    row("no: at a host", relationship(type, "http://example.com/main.xml"), "main.xml");
    row("no: of another kind", relationship(transitional + "extended-properties", "main.xml"), "main.xml");
    row("no: missing", relationship(type, "no.xml"), "main.xml");
    row("no: nowhere said", "", "main.xml");
}

void ReadOfficeDocumentsTest::findsMainPart()
{
    QFETCH(QByteArray, relationships);
    QFETCH(QByteArray, name);
    const bool isFound = !QByteArray(QTest::currentDataTag()).startsWith("no:");
    QCOMPARE(imported(relationships, name, "<w:t>" + twenty + "</w:t>"),
        isFound ? u"text: "_s + QString::fromUtf8(twenty) : noText);
}

void ReadOfficeDocumentsTest::sortsSlides_data()
{
    QTest::addColumn<QByteArrayList>("slides");
    QTest::addColumn<QString>("order");
    const auto row = [](const char *name, const QByteArrayList &slides, const QString &order) {
        QTest::newRow(name) << slides << order;
    };
    row("by number", { "10", "2", "1" }, u"[1] [2] [10]"_s);
    row("no number comes first", { "1", "X", "", "-5" }, u"[X] [] [-5] [1]"_s);
    row("equal numbers stay", { "2b", "02", "2a", "1" }, u"[1] [2b] [02] [2a]"_s);
    row("other digits are no number", { "1", "\u0663"_ba, "3\u00B2"_ba, "4\U0001D7CF"_ba, "5一"_ba },
        u"[\u0663] [3\u00B2] [4\U0001D7CF] [5一] [1]"_s);
    row("number too large", { "9223372036854775807", "9223372036854775808" },
        u"[9223372036854775808] [9223372036854775807]"_s);
}

void ReadOfficeDocumentsTest::sortsSlides()
{
    QFETCH(QByteArrayList, slides);
    QFETCH(QString, order);
    Parts parts { { "ppt/slides/_rels/slide1.xml.rels", { "no" } }, { "ppt/notesSlides/notesSlide1.xml", { "no" } },
        { "ppt/slideLayouts/slideLayout1.xml", { "no" } }, { "ppt/slides/slide0.xml", { twenty } } };
    for (const QByteArray &slide : std::as_const(slides))
        parts.append({ "ppt/slides/slide" + slide + ".xml", { '[' + slide + ']' } });
    QCOMPARE(read(readPresentation, package(parts)), u"text: "_s + QString::fromUtf8(twenty) + u' ' + order);
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
