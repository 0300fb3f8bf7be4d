// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "extraction/pdf/readPDF.h"

#include "extraction/describe.h"
#include "extraction/pdf/looksLikeReadableText.h"
#include "extraction/pdf/TestPDF.h"
#include "platform/linux/openRegularFile.h"
#include <QTest>

using namespace Qt::StringLiterals;
using namespace Varlo;

/// Notes the pages that it is shown, and answers what it was told, then nothing.
struct FakeRecognizer final : TextRecognizer {
    QStringList answers;
    QList<QSize> sizes;
    QList<int> resolutions;
    bool sawInk = false;

    [[nodiscard]] QString recognize(const PagePicture &page) override
    {
        sizes.append(QSize(page.width, page.height));
        resolutions.append(page.resolution);
        for (int row = 0; row < page.height; ++row) {
            const auto pixels = page.pixels.subspan(
                static_cast<size_t>(row) * static_cast<size_t>(page.bytesPerRow), static_cast<size_t>(page.width));
            sawInk = sawInk || std::find(pixels.begin(), pixels.end(), std::byte { 0 }) != pixels.end();
        }
        return answers.value(sizes.size() - 1);
    }
};

class ReadPDFTest : public QObject {
    Q_OBJECT
private slots:
    void tellsLanguage_data();
    void tellsLanguage();
    void decidesWithTheFirstWords();
    void reads_data();
    void reads();
    void readsNoMorePagesThanItNeeds_data();
    void readsNoMorePagesThanItNeeds();
    void showsThePage_data();
    void showsThePage();
    void recognizesPageByPage_data();
    void recognizesPageByPage();
};

static const QString noText = u"no text found"_s;
static const QString needsRecognition = u"needs recognition"_s;
static const QString letter = u"The garden wall has to be repaired before the winter. We will be with you on Monday."_s;

static QString describePDF(const std::variant<Extraction, NeedsRecognition> &outcome)
{
    return std::visit(Overloaded { [](const Extraction &extraction) { return describe(extraction); },
                          [](NeedsRecognition) { return needsRecognition; } },
        outcome);
}

static QString readWithout(const QByteArray &pdf)
{
    return describePDF(readPDF(fileOf(pdf), nullptr, [] {}));
}

void ReadPDFTest::tellsLanguage_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("isReadable");
    const auto words = [](int common, int other) { return u"THE "_s.repeated(common) + u"Xylem "_s.repeated(other); };
    QTest::newRow("8 of 100") << words(8, 92) << true;
    QTest::newRow("7 of 100") << words(7, 93) << false;
    QTest::newRow("1 of 12") << words(1, 11) << true;
    QTest::newRow("1 of 13") << words(1, 12) << false;
    QTest::newRow("16 of the first 200") << words(16, 1000) << true;
    QTest::newRow("behind the first 200") << u"Xylem "_s.repeated(185) + u"de "_s.repeated(100) << false;
    QTest::newRow("single letters do not count") << u"x 1 y 2 "_s.repeated(300) + words(16, 184) << true;
    QTest::newRow("numbers and codes") << u"4711 0815-12 A1 B2 / 19,99 X "_s.repeated(30) << false;
    QTest::newRow("empty") << QString() << false;
    QTest::newRow("no part of a word") << u"theory another inward"_s << false;
    QTest::newRow("digits separate") << u"3the4"_s << true;
    QTest::newRow("so do apostrophes") << u"the's"_s << true;
    QTest::newRow("so do line breaks, not only spaces") << u"ab\nthe\u2028cd"_s << true;
    QTest::newRow("Spanish") << u"MÁS"_s << true;
    QTest::newRow("accents written apart") << u"ma\u0301s"_s << true;
    QTest::newRow("the accent matters") << u"mas"_s << false;
    QTest::newRow("Dutch") << u"Wordt"_s << true;
    QTest::newRow("letters of any script are words") << u"слово "_s.repeated(13) + u"the"_s << false;
    QTest::newRow("letters beyond 16 bits") << u"𐐨𐐩 "_s.repeated(13) + u"the"_s << false;
    QTest::newRow("a word without end") << u"the "_s + u"x"_s.repeated(2'000'000) << true;
}

void ReadPDFTest::tellsLanguage()
{
    QFETCH(QString, text);
    QFETCH(bool, isReadable);
    QCOMPARE(looksLikeReadableText(text), isReadable);
}

void ReadPDFTest::decidesWithTheFirstWords()
{
    ReadabilityTest test;
    test.add(u"Xylem the "_s.repeated(99) + u"Xylem"_s);
    QVERIFY(!test.isDecided());
    test.add(u"the"_s);
    QVERIFY(test.isDecided() && test.isPassed());
    test.add(u"Xylem "_s.repeated(10000));
    QVERIFY(test.isPassed());
}

void ReadPDFTest::reads_data()
{
    QTest::addColumn<QByteArray>("pdf");
    QTest::addColumn<QString>("outcome");
    const auto row = [](const char *name, const QByteArray &pdf, const QString &outcome) {
        QTest::newRow(name) << pdf << outcome;
    };
    const QString text = u"text: "_s + letter;
    row("text layer", textPDF({ letter }), text);
    row("pages are parted", textPDF({ letter.first(19), letter.sliced(20) }), text);
    row("an empty page between", textPDF({ letter.first(19), {}, letter.sliced(20) }), text);
    row("language only on a later page", textPDF({ u"4711"_s, letter }), u"text: 4711 "_s + letter);
    row("one line after the other", pagesPDF({ { column(wrapped(letter, 20)) } }), text);
    const QStringList lines = wrapped(letter, 16); // six of them
    row("column after column, though they were drawn line by line", pagesPDF({ { [&] {
        QByteArray content;
        for (int number = 0; number < 3; ++number) {
            const QByteArray top = QByteArray::number(800 - 12 * number);
            for (const auto &[left, line] : { std::pair("40 ", lines[number]), std::pair("320 ", lines[3 + number]) })
                content += "BT /F 10 Tf " + QByteArray(left) + top + " Td (" + line.toLatin1() + ") Tj ET\n";
        }
        return content;
    }() } }),
        u"text: "_s + lines.join(u' '));
    row("white and invisible text counts",
        pagesPDF({ { "1 1 1 rg " + column({ letter.first(34) }) }, { "3 Tr " + column({ letter.sliced(35) }) } }),
        text);
    row("rotated page",
        pagesPDF({ { "0 1 -1 0 842 0 cm " + column({ letter }), "/MediaBox [0 0 842 842] /Rotate 90" } }), text);
    row(
        "astral letters and broken halves of them",
        [] {
            const QByteArray map = "/CIDInit /ProcSet findresource begin begincmap 1 begincodespacerange <00> <FF> "
                                   "endcodespacerange 2 beginbfchar <01> <D83DDE00> <02> <D83D> endbfchar endcmap end";
            QByteArray pdf = textPDF({ letter });
            pdf.replace("/Encoding /WinAnsiEncoding", "/ToUnicode 6 0 R");
            pdf.replace("trailer", "6 0 obj\n" + streamObject(map) + "\nendobj\ntrailer");
            pdf.replace("(The garden", "(\001\002 The garden");
            return pdf;
        }(),
        u"text: 😀\uFFFD "_s + letter);
    row("Illustrator's own data beside",
        pagesPDF({ { column({ letter }),
            "/MediaBox [0 0 595 842] /PieceInfo << /Illustrator << /Private << /AIPrivateData1 (the and of) >> >> "
            ">>" } }),
        text);
    row("numbers and codes only", textPDF({ u"4711 0815-12 A1 B2 19,99 2023 77 88 99 101 12 13 14"_s }),
        needsRecognition);
    row("letters of a broken font", textPDF({ u"Gsv tziwvm dzoo szh gl yv ivkzrivw yvuliv gsv drmgvi"_s }),
        needsRecognition);
    row("no text layer", pagesPDF({ { "0 0 100 100 re f" } }), needsRecognition);
    row("too short to name from, yet readable: not looked at", textPDF({ u"In the end"_s }), noText);
    row("no pages", pagesPDF({}), noText);
    row("no PDF", "Dear all, this is a letter to the neighbours of the house.", noText);
    row("empty file", "", noText);
}

void ReadPDFTest::reads()
{
    QFETCH(QByteArray, pdf);
    QFETCH(QString, outcome);
    QCOMPARE(readWithout(pdf), outcome);
}

void ReadPDFTest::readsNoMorePagesThanItNeeds_data()
{
    QTest::addColumn<QStringList>("pages");
    QTest::addColumn<int>("pagesRead");
    QTest::addColumn<QString>("outcome");
    const QString page = u"This is the text of a page that goes on and on, with words of all kinds. "_s.repeated(34);
    const QString text = page.repeated(5).first(8000);
    QTest::newRow("stops once it has the characters") << QStringList(30, page) << 4 << u"text: "_s + text;
    QTest::newRow("8000 to the letter, though the next page could add an accent")
        << QStringList(30, u"the "_s.repeated(249) + u"abcd"_s) << 9
        << u"text: "_s + (u"the "_s.repeated(249) + u"abcd "_s).repeated(8).first(8000);
    const QString accents = u"más é ñ ü "_s.repeated(250);
    QTest::newRow("accents cost no more pages")
        << QStringList(30, accents) << 4 << u"text: "_s + accents.repeated(4).first(8000);
    const QString numbers = u"4711 0815 "_s.repeated(250);
    QTest::newRow("numbers first: goes on to the words")
        << (QStringList(6, numbers) + QStringList(20, page)) << 7 << u"text: "_s + numbers.repeated(4).first(8000);
    QTest::newRow("few words a page: goes on to the end")
        << QStringList(20, numbers + u"the"_s) << 20 << u"text: "_s + (numbers + u"the "_s).repeated(4).first(8000);
    QTest::newRow("garbage is known by its first words")
        << QStringList(30, u"Xylem "_s.repeated(120)) << 2 << needsRecognition;
}

void ReadPDFTest::readsNoMorePagesThanItNeeds()
{
    QFETCH(QStringList, pages);
    QFETCH(int, pagesRead);
    QFETCH(QString, outcome);
    int progress = 0;
    QCOMPARE(describePDF(readPDF(fileOf(textPDF(pages)), nullptr, [&] { ++progress; })), outcome);
    QCOMPARE(progress, pagesRead);
}

void ReadPDFTest::showsThePage_data()
{
    QTest::addColumn<QByteArray>("attributes");
    QTest::addColumn<QSize>("size"); // empty: the page is not shown
    QTest::addColumn<int>("resolution");
    const auto row = [](const char *name, const QByteArray &attributes, QSize size, int resolution = 144) {
        QTest::newRow(name) << attributes << size << resolution;
    };
    row("twice its points", "/MediaBox [0 0 595 842]", { 1190, 1684 });
    row("rotated", "/MediaBox [0 0 595 842] /Rotate 270", { 1684, 1190 });
    row("corners the other way round", "/MediaBox [595 842 0 0]", { 1190, 1684 });
    row("away from the origin", "/MediaBox [-100 -100 495 742]", { 1190, 1684 });
    row("without a media box: Letter", "", { 1224, 1584 });
    row("long side capped", "/MediaBox [0 0 6000 600]", { 6000, 600 }, 72);
    row("area capped", "/MediaBox [0 0 14400 14400]", { 5657, 5657 }, 28);
    row("huge", "/MediaBox [0 0 200000000 200000000]", { 5657, 5657 }, 0);
}

void ReadPDFTest::showsThePage()
{
    QFETCH(QByteArray, attributes);
    QFETCH(QSize, size);
    QFETCH(int, resolution);
    FakeRecognizer recognizer;
    recognizer.answers = QStringList { letter };
    const QByteArray pdf = pagesPDF({ { "-1000 -1000 20000 20000 re f 0 0 300000000 300000000 re f", attributes } });
    QCOMPARE(describePDF(readPDF(fileOf(pdf), &recognizer, [] {})), u"text: "_s + letter);
    QCOMPARE(recognizer.sizes, QList { size });
    QCOMPARE(recognizer.resolutions, QList { resolution });
    QVERIFY(recognizer.sawInk);
}

void ReadPDFTest::recognizesPageByPage_data()
{
    QTest::addColumn<QByteArray>("pdf");
    QTest::addColumn<QStringList>("answers");
    QTest::addColumn<std::chrono::milliseconds>("limit");
    QTest::addColumn<int>("pagesShown");
    QTest::addColumn<QString>("outcome");
    const auto scan = [](int pages) { return pagesPDF(QList<TestPage>(pages, { "0 0 100 100 re f" })); };
    const auto row = [&](const char *name, const QByteArray &pdf, const QStringList &answers, int shown,
                         const QString &outcome, std::chrono::milliseconds limit = std::chrono::minutes(9)) {
        QTest::newRow(name) << pdf << answers << limit << shown << outcome;
    };
    row("joined by spaces", scan(2), { letter.first(19), letter.sliced(20) }, 2, u"text: "_s + letter);
    row("pages without text between", scan(3), { letter.first(19), {}, letter.sliced(20) }, 3, u"text: "_s + letter);
    row("nothing recognized", scan(3), {}, 3, noText);
    const QString page = u"scanned "_s.repeated(312) + u"text"_s; // 2500 characters
    row("stops after 8000 characters", scan(30), QStringList(30, page), 4,
        u"text: "_s + QStringList(4, page).join(u' ').first(8000));
    row("at 8000 to the letter", scan(3), QStringList(3, u"x"_s.repeated(4000)), 2,
        u"text: "_s + u"x"_s.repeated(4000) + u' ' + u"x"_s.repeated(3999));
    row("not at 7999", scan(3), { u"x"_s.repeated(3999), u"x"_s.repeated(4000) }, 3,
        u"text: "_s + u"x"_s.repeated(3999) + u' ' + u"x"_s.repeated(4000));
    row("characters, not units", scan(3), QStringList(3, u"👩‍👩‍👧‍👦"_s.repeated(1000)), 3,
        u"text: "_s + QStringList(3, u"👩‍👩‍👧‍👦"_s.repeated(1000)).join(u' '));
    row("out of time: what there is so far", scan(30), QStringList(30, letter), 1, u"text: "_s + letter,
        std::chrono::milliseconds(0));
    row("the layer's garbage is no part of it", textPDF({ u"Gsv tziwvm dzoo szh gl yv ivkzrivw"_s }), { letter }, 1,
        u"text: "_s + letter);
    const QByteArray thin = "/MediaBox [0 0 14400 0.001]";
    row("a page that cannot be shown is no end", pagesPDF({ { "0 0 9 9 re f", thin }, { "0 0 9 9 re f" } }), { letter },
        1, u"text: "_s + letter);
    row("text layer: never shown", textPDF({ letter }), { u"something else than the layer"_s }, 0,
        u"text: "_s + letter);
    row("short text layer: never shown", textPDF({ u"In the end"_s }), { letter }, 0, noText);
}

void ReadPDFTest::recognizesPageByPage()
{
    QFETCH(QByteArray, pdf);
    QFETCH(QStringList, answers);
    QFETCH(std::chrono::milliseconds, limit);
    QFETCH(int, pagesShown);
    QFETCH(QString, outcome);
    FakeRecognizer recognizer;
    recognizer.answers = answers;
    QCOMPARE(describePDF(readPDF(
                 fileOf(pdf), &recognizer, [] {}, limit)),
        outcome);
    QCOMPARE(recognizer.sizes.size(), pagesShown);
}

QTEST_GUILESS_MAIN(ReadPDFTest)
#include "tst_readPDF.moc"
