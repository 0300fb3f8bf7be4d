// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "extraction/richtext/readRichText.h"

#include "extraction/describe.h"
#include <fcntl.h>
#include <QDir>
#include <QTemporaryFile>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace Varlo;

class ReadRichTextTest : public QObject {
    Q_OBJECT
private slots:
    void readsWhatProgramsWrite_data();
    void readsWhatProgramsWrite();
    void decodes_data();
    void decodes();
    void reads_data();
    void reads();
    void survives_data();
    void survives();
    void survivesEveryCutAndEveryFlippedByte();
    void stopsWithEnough_data();
    void stopsWithEnough();
    void passesOverHoles();
    void refuses_data();
    void refuses();
};

static const QString noText = u"no text found"_s;
// Twenty characters, since fewer are no text.
static const QByteArray lead = "Twenty characters...|"_ba;
static const QString shownLead = u"text: Twenty characters...|"_s;

static QString read(const QTemporaryFile &file) { return describe(readRichText(FileDescriptor(::dup(file.handle())))); }

static QString read(const QByteArray &rtf)
{
    QTemporaryFile file;
    return file.open() && file.write(rtf) == rtf.size() && file.flush() ? read(file) : QString();
}

static QString readBody(const QByteArray &body)
{
    return read("{\\rtf1\\ansi\\ansicpg1252\\deff0{\\fonttbl{\\f0\\fcharset0 Serif;}"
                "\\f1\\fcharset204 Flat;{\\f2\\fcharset2 Pictures;}{\\f3\\fcharset128 Wide{\\*\\falt \\'82\\'6c};}}"
        + lead + body + "}");
}

void ReadRichTextTest::readsWhatProgramsWrite_data()
{
    QTest::addColumn<QString>("path");
    const QDir samples(QStringLiteral(VARLO_SOURCE_DIR "/tests/extraction/richtext/samples"));
    for (const QFileInfo &sample : samples.entryInfoList({ u"*.rtf"_s }))
        QTest::newRow(qPrintable(sample.baseName())) << sample.filePath().chopped(4);
}

void ReadRichTextTest::readsWhatProgramsWrite()
{
    QFETCH(QString, path);
    QFile rtf(path + u".rtf"_s);
    QFile expected(path + u".txt"_s);
    QVERIFY(rtf.open(QFile::ReadOnly) && expected.open(QFile::ReadOnly));
    QCOMPARE(read(rtf.readAll()), u"text: "_s + QString::fromUtf8(expected.readAll()).simplified());
}

void ReadRichTextTest::decodes_data()
{
    QTest::addColumn<QByteArray>("codePage");
    QTest::addColumn<QByteArray>("charset");
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("text");
    const auto row = [](const char *name, int codePage, int charset, const char *hex, const QString &text) {
        QTest::newRow(name) << "\\ansicpg" + QByteArray::number(codePage) << "\\fcharset" + QByteArray::number(charset)
                            << QByteArray::fromHex(hex) << text;
    };
    row("Central European", 1250, 238, "aff3b3e62067ea9c6cb9", u"Żółć gęślą"_s);
    row("Cyrillic", 1251, 204, "d1fae5f8fc20e5f9b8", u"Съешь ещё"_s);
    row("Western", 1252, 0, "436166e9209620848093", u"Café – „€“"_s);
    row("Greek", 1253, 161, "cee5f3eae5f0dce6f9", u"Ξεσκεπάζω"_s);
    row("Turkish", 1254, 162, "de69fe6c6920fdf064fd72", u"Şişli ığdır"_s);
    row("Hebrew", 1255, 177, "e3e220f1f7f8ef", u"דג סקרן"_s);
    row("Arabic", 1256, 178, "e4d520cddfede3", u"نص حكيم"_s);
    row("Baltic", 1257, 186, "c16c696e6b64616d6120e0fe756f6ce0", u"Įlinkdama ąžuolą"_s);
    row("Vietnamese", 1258, 163, "d0f56e20e36e", u"Đơn ăn"_s);
    row("Thai", 874, 222, "a1a2a3a4a5", u"กขฃคฅ"_s);
    // Some of these have a backslash or brace as their second byte.
    row("Japanese", 932, 128, "955c8ea6835c945c", u"表示ソ能"_s);
    row("simplified Chinese", 936, 134, "ccecb5d8d0febbc6", u"天地玄黄"_s);
    row("Korean", 949, 129, "b4ebc7d1b9ceb1b9208c63", u"대한민국 똠"_s);
    row("traditional Chinese", 950, 136, "b35ca55cbb5c", u"許功蓋"_s);
    row("DOS, American", 437, 254, "477294e16520b020ab", u"Größe ░ ½"_s);
    row("DOS, Western", 850, 255, "d1e4209e", u"Ðõ ×"_s);
    row("Macintosh", 10000, 77, "ce7576726520b720bd", u"Œuvre ∑ Ω"_s);
    QTest::newRow("Macintosh by its word") << "\\mac"_ba
                                           << "\\fcharset77"_ba
                                           << "\x8E"_ba << u"é"_s;
    QTest::newRow("DOS by its word") << "\\pc"_ba
                                     << "\\fcharset254"_ba
                                     << "\xE1"_ba << u"ß"_s;
    QTest::newRow("DOS, Western, by its word") << "\\pca"_ba
                                               << "\\fcharset255"_ba
                                               << "\xD1"_ba << u"Ð"_s;
}

void ReadRichTextTest::decodes()
{
    QFETCH(QByteArray, codePage);
    QFETCH(QByteArray, charset);
    QFETCH(QByteArray, bytes);
    QFETCH(QString, text);
    QByteArray escaped;
    QByteArray raw; // as they stand, but for what would be syntax
    QByteArray secondHalvesRaw;
    for (const char byte : bytes) {
        const QByteArray symbol = QByteArray("\\{}").contains(byte) ? '\\' + QByteArray(1, byte) : QByteArray(1, byte);
        const QByteArray hex = "\\'" + QByteArray(1, byte).toHex();
        escaped += hex;
        raw += symbol;
        secondHalvesRaw += static_cast<signed char>(byte) >= 0 ? symbol : hex;
    }
    const QString expected = shownLead + text;
    for (const QByteArray &written : { escaped, raw, secondHalvesRaw }) {
        QCOMPARE(read("{\\rtf1\\ansi" + codePage + ' ' + lead + written + '}'), expected);
        const QByteArray fonts = "{\\fonttbl{\\f7" + charset + " Some Font;}}";
        const QByteArray other
            = codePage == "\\ansicpg1251" ? "{\\rtf1\\ansi\\ansicpg1253"_ba : "{\\rtf1\\ansi\\ansicpg1251"_ba;
        QCOMPARE(read(other + fonts + lead + "\\f7 " + written + '}'), expected);
        QCOMPARE(read(other + "\\deff7" + fonts + lead + "{\\f8 {\\plain " + written + "}}}"), expected);
    }
}

void ReadRichTextTest::reads_data()
{
    QTest::addColumn<QByteArray>("body");
    QTest::addColumn<QString>("text");
    const auto row
        = [](const char *name, const QByteArray &body, const QString &text) { QTest::newRow(name) << body << text; };
    row("line breaks in the file are none", "a\r\nb\nc"_ba, u"abc"_s);
    row("space that ends a word", "a\\b b\\b0  c"_ba, u"ab c"_s);
    row("white space of every kind", "a\\par b\\line c\\tab d\\sect e\\page f\\column g\\\nh\\~i\\emspace j"_ba,
        u"a b c d e f g h i j"_s);
    row("cells and rows", "a\\cell b\\cell\\row c\\nestcell d\\nestrow e"_ba, u"a b c d e"_s);
    row("special characters", "\\lquote\\rquote\\ldblquote\\rdblquote\\endash\\emdash\\bullet\\_\\{\\}\\\\"_ba,
        u"‘’“”–—•\u2011{}\\"_s);
    row("where a word may be broken", "hyphen\\-ation"_ba, u"hyphenation"_s);
    row("escape in capitals", "\\'E9"_ba, u"é"_s);
    row("damaged escape", "a\\'g1b"_ba, u"ag1b"_s);

    row("fallback of one character", "\\u233ea\\u8364\\'80b\\u8217\\rquote c"_ba, u"éa€b’c"_s);
    row("fallback of none", "\\uc0\\u233 e"_ba, u"ée"_s);
    row("fallback of two bytes", "{\\uc2\\u26085\\'93\\'fa}\\u233e."_ba, u"日é."_s);
    row("fallback ends with its group", "{\\uc5\\u233e}e"_ba, u"ée"_s);
    row("fallback that is missing", "\\u233\\par b"_ba, u"é b"_s);
    row("fallback of binary data", "\\u233\\bin3 {{{b"_ba, u"éb"_s);
    row("negative number", "\\u-4064?\\u-10179?\\u-8704?"_ba, u"•😀"_s);
    row("half of a pair alone", "\\u-10179?x\\u-8704?"_ba, u"\uFFFDx\uFFFD"_s);
    row("beyond sixteen bits", "\\u128512?\\u1114112?\\u99999999999999999999?\\u-99999999999999999999?"_ba,
        u"😀\uFFFD\uFFFD\uFFFD"_s);
    row("half a character before other text", "\\f3\\'93\\u233e\\'93\\f1\\'fa"_ba, u"\uFFFDé\uFFFDъ"_s);

    row("font ends with its group", "{\\f1\\'e9}\\'e9"_ba, u"йé"_s);
    row("font that the table lacks", "\\f99\\'e9"_ba, u"é"_s);
    row("code page of a font", "{\\fonttbl{\\f5\\fcharset0\\cpg1251 X;}}\\f5\\'e9"_ba, u"й"_s);
    row("unknown character set", "{\\fonttbl{\\f5\\fcharset99 X;}}\\f5\\'e9"_ba, u"é"_s);
    row("unknown code page", "{\\fonttbl{\\f5\\cpg99 X;}}\\f5\\'e9"_ba, u"é"_s);
    row("pictograms", "\\f2 a\\'b7\\u-3913?"_ba, u"a••"_s);

    row("head", "{\\stylesheet{Normal;}}{\\colortbl;}{\\info{\\title T}}{\\*\\generator G;}{\\*\\unknown u}a"_ba,
        u"a"_s);
    row("running heads", "{\\header h}{\\headerf h}{\\footerl f}{\\*\\ftnsep s}a"_ba, u"a"_s);
    row("picture", "{\\pict\\pngblip 89504e47}{\\*\\shppict{\\pict 89}}{\\nonshppict{\\pict 89}}a"_ba, u"a"_s);
    row("picture in binary", "{\\pict\\wmetafile8\\bin5 }}{{\\}a"_ba, u"a"_s);
    row("object shows its result", "{\\object{\\*\\objdata 01}{\\objclass X}{\\result r}}"_ba, u"r"_s);
    row("field shows its result", "{\\field{\\*\\fldinst HYPERLINK \"x\"}{\\fldrslt {\\ul site}}}{\\fldinst X}"_ba,
        u"site"_s);
    row("list label", "{\\listtext\\f2\\'b7\\tab}a{\\pntext 1.\\tab}{\\*\\pn{\\pntxtb (}}b"_ba, u"• a1. b"_s);
    row("footnote stands apart", "a{\\super\\chftn{\\footnote n}}b{\\*\\footnote\\ftnalt m}c"_ba, u"a n b m c"_s);
    row("text box once",
        "a{\\shp{\\*\\shpinst{\\sp{\\sn n}{\\sv v}}{\\shptxt t}}{\\shprslt{\\*\\do{\\dptxbxtext t}}}}b"_ba, u"a t b"_s);
    row("text box of old", "a{\\*\\do\\dobxcolumn{\\dptxbx{\\dptxbxtext t}}}b"_ba, u"a t b"_s);
    row("both forms of one text", "{\\upr{a?}{\\*\\ud{a\\u233e}}}"_ba, u"aé"_s);
    row("comment", "{\\*\\atnid X}{\\*\\annotation{\\*\\atndate 1}c}a"_ba, u"a"_s);
    row("index entry", "{\\xe entry}{\\tc content}a"_ba, u"a"_s);
    row("skipped with all that it holds", "{\\*\\unknown{\\footnote n}{\\shptxt t}{\\fldrslt f}}a"_ba, u"a"_s);
    row("mark of a skipped group is for the next word only", "\\*{a}{\\*text}\\*\\'e9\\b b"_ba, u"atextéb"_s);

    row("hidden", "a{\\v b\\par\\u233?{c}\\v0 d}e\\v f\\plain g"_ba, u"adeg"_s);
    row("deleted", "a{\\deleted\\revauthdel1 b}{\\revised c}\\deleted d\\deleted0 e"_ba, u"ace"_s);
    row("behind the end", "a}b{\\rtf1 c"_ba, u"a"_s);
}

void ReadRichTextTest::reads()
{
    QFETCH(QByteArray, body);
    QFETCH(QString, text);
    QCOMPARE(readBody(body), shownLead + text);
}

void ReadRichTextTest::survives_data()
{
    QTest::addColumn<QByteArray>("body");
    QTest::addColumn<QString>("text");
    const auto row
        = [](const char *name, const QByteArray &body, const QString &text) { QTest::newRow(name) << body << text; };
    constexpr int many = 1'000'000;
    row("groups never closed", "a" + "{\\b "_ba.repeated(many) + "b", u"a"_s);
    row("groups in groups", "a" + "{"_ba.repeated(many) + "\\'62b\\u98?\\~{\\*\\x}" + "}"_ba.repeated(many) + "c",
        u"ac"_s);
    row("groups in a skipped one", "a{\\*\\x" + "{"_ba.repeated(many) + "}"_ba.repeated(many) + "}c", u"ac"_s);
    row("groups beside groups", "{\\f1{\\footnote }}"_ba.repeated(many) + "a", u"a"_s.prepend(u' '));
    row("more ends than beginnings", "a" + "}"_ba.repeated(many) + "b", u"a"_s);
    row("a change of font with every byte", "{\\pict"_ba + "\\f1\\'e9\\f3\\'93\\f2\\'b7"_ba.repeated(100'000) + "}a",
        u"a"_s);
    row("long control word", "a\\" + "b"_ba.repeated(many) + " c", u"ac"_s);
    row("long name that begins like another", "a\\par" + "x"_ba.repeated(many) + " c", u"ac"_s);
    row("long number", "a\\u" + "9"_ba.repeated(many) + "?c", u"a\uFFFDc"_s);
    row("long fallback", "a\\uc2147483647\\u98 " + "x"_ba.repeated(many) + "{c}", u"abc"_s);
    row("negative fallback", "\\uc-5\\u233 e", u"ée"_s);
    row("binary data past the end", "a\\bin2147483647 bc", u"a"_s);
    row("less than no binary data", "a\\bin-5 b\\bin c", u"abc"_s);
    row("zeros", "a" + QByteArray(many, '\0') + "b\\par" + QByteArray(1, '\0') + "c", u"ab c"_s);
    QByteArray fonts = "{\\fonttbl";
    for (int font = 0; font < 100'000; ++font)
        fonts += "\\f" + QByteArray::number(font * 4096) + "\\fcharset204";
    row("many fonts", fonts + "}\\f65536 \\'e9", u"й"_s);
    row("font table in the middle of a group", "a\\fonttbl\\f5\\fcharset204 b", u"a"_s);
}

void ReadRichTextTest::survives()
{
    QFETCH(QByteArray, body);
    QFETCH(QString, text);
    QCOMPARE(readBody(body), shownLead + text);
}

void ReadRichTextTest::survivesEveryCutAndEveryFlippedByte()
{
    QFile sample(QStringLiteral(VARLO_SOURCE_DIR "/tests/extraction/richtext/samples/old-word.rtf"));
    QVERIFY(sample.open(QFile::ReadOnly));
    const QByteArray rtf = sample.readAll();
    QString before = noText;
    for (qsizetype size = 0; size <= rtf.size(); ++size) {
        const QString outcome = read(rtf.first(size));
        QVERIFY(outcome == noText || outcome.startsWith(u"text: Musée d’Orsay"));
        QVERIFY(outcome.size() >= before.size());
        before = outcome;
        if (size == rtf.size())
            break;
        QByteArray flipped = rtf;
        flipped[size] = static_cast<char>(~flipped[size]);
        const QString other = read(flipped);
        QVERIFY(other == noText || other.startsWith(u"text: "));
    }
}

/// The bytes that this process has had from system calls.
static qint64 bytesRead()
{
    QFile counters(u"/proc/self/io"_s);
    return counters.open(QFile::ReadOnly) ? counters.readLine().mid(qstrlen("rchar: ")).trimmed().toLongLong() : 0;
}

void ReadRichTextTest::stopsWithEnough_data()
{
    QTest::addColumn<QByteArray>("written");
    QTest::addColumn<QString>("text");
    QTest::newRow("ASCII") << "word \\b word\\b0 "_ba << u"word word"_s;
    QTest::newRow("escapes") << "\\'e9 \\u26085 ?"_ba << u"é 日"_s;
}

void ReadRichTextTest::stopsWithEnough()
{
    QFETCH(QByteArray, written);
    QFETCH(QString, text);
    QTemporaryFile file;
    QVERIFY(file.open() && file.write("{\\rtf1 " + written.repeated(500'000)) > 5'000'000 && file.flush());
    const qint64 before = bytesRead();
    QCOMPARE(read(file), u"text: "_s + text.repeated(8000 / text.size() + 1).first(8000));
    const qint64 taken = bytesRead() - before;
    QVERIFY2(taken > 8000 && taken < 1'000'000, QByteArray::number(taken).constData());
}

void ReadRichTextTest::passesOverHoles()
{
    QTemporaryFile file;
    QVERIFY(file.open() && file.write("{\\rtf1 " + lead) > 0 && file.flush() && file.resize(8LL << 40));
    QCOMPARE(read(file), shownLead);
    QVERIFY(file.seek(file.size()) && file.write("end") == 3 && file.flush());
    QCOMPARE(read(file), shownLead + u"end"_s);
}

void ReadRichTextTest::refuses_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("empty") << ""_ba;
    QTest::newRow("too little text") << "{\\rtf1\\ansi Nineteen\\~ characters}"_ba;
    QTest::newRow("text under a wrong name") << "A plain text that somebody named .rtf"_ba;
    QTest::newRow("behind white space") << " {\\rtf1 Twenty characters and more}"_ba;
    QTest::newRow("nearly") << "{\\rtg1 Twenty characters and more}"_ba;
    QTest::newRow("only pictures") << "{\\rtf1{\\pict 0123456789012345678901234567890123456789}}"_ba;
}

void ReadRichTextTest::refuses()
{
    QFETCH(QByteArray, bytes);
    QCOMPARE(read(bytes), noText);
    QTemporaryFile file;
    QVERIFY(file.open() && file.write("{\\rtf1 Twenty characters and more}") > 0 && file.flush());
    const FileDescriptor writeOnly(::open(file.fileName().toUtf8().constData(), O_WRONLY));
    QCOMPARE(describe(readRichText(writeOnly)), noText);
}

QTEST_GUILESS_MAIN(ReadRichTextTest)
#include "tst_readRichText.moc"
