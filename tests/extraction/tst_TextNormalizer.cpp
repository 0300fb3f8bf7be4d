// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "extraction/TextNormalizer.h"

#include "extraction/describe.h"
#include "extraction/normalizeExtractedText.h"
#include <QRandomGenerator>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace Varlo;

class TextNormalizerTest : public QObject {
    Q_OBJECT
private slots:
    void normalizes_data();
    void normalizes();
    void refuses_data();
    void refuses();
    void agreesOnRandomText();
};

static const QString noText = u"no text found"_s;

/// Qt decodes the whole at once: what the chunks are held against.
static QString inWhole(const QByteArray &utf8)
{
    return utf8.isValidUtf8() ? describe(normalizeExtractedText(QString::fromUtf8(utf8))) : noText;
}

static QString inChunks(const QByteArray &utf8, const QList<qsizetype> &sizes)
{
    TextNormalizer normalizer;
    QByteArrayView rest(utf8);
    bool isUtf8 = true;
    for (const qsizetype size : sizes) {
        isUtf8 = normalizer.append(rest.first(size));
        rest = rest.sliced(size);
    }
    return normalizer.append(rest) && isUtf8 ? describe(normalizer.finish()) : noText;
}

void TextNormalizerTest::normalizes_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("outcome");
    const auto empty = [](const char *name, const QString &text) { QTest::newRow(name) << text << noText; };
    const auto row = [](const char *name, const QString &text, const QString &kept) {
        QTest::newRow(name) << text << u"text: "_s + kept;
    };
    const QString nineteen = u"nineteen characters"_s;
    const QString family = u"👩‍👩‍👧‍👦"_s;
    const QString spaces = u"\t\n\v\f\r \u0085\u00A0\u1680\u2000\u2001\u2002\u2003\u2004\u2005\u2006\u2007\u2008\u2009"
                           "\u200A\u2028\u2029\u202F\u205F\u3000"_s;
    empty("one too few", nineteen);
    row("just enough", nineteen + u'.', nineteen + u'.');
    empty("enough only with white space around", u"\n \t"_s + nineteen + spaces);
    empty("enough only with all its line breaks", u"a\r\n\t\tb"_s.repeated(6));
    for (const QChar space : spaces)
        row("each white space", nineteen + space + space + u'.', nineteen + u" ."_s);
    row("no white space, though invisible", u"a\u200B\u2060\uFEFF\u180E"_s.repeated(20),
        u"a\u200B\u2060\uFEFF\u180E"_s.repeated(20));
    row("sequences of every length", u"aé漢😀\u07FF\u0800\uFFFF\U0010FFFF and e\u0301"_s + nineteen,
        u"aé漢😀\u07FF\u0800\uFFFF\U0010FFFF and e\u0301"_s + nineteen);
    row("NULs are characters", QString(20, QChar()), QString(20, QChar()));
    row("byte order mark", u"\uFEFF "_s + nineteen + u"\uFEFF "_s, nineteen + u'\uFEFF');
    row("two byte order marks", u"\uFEFF\uFEFF"_s + nineteen, u'\uFEFF' + nineteen);
    empty("units are no characters", family.repeated(19));
    row("few characters, many units", family.repeated(20), family.repeated(20));
    row("cut between characters", (u"x"_s + family).repeated(5000), (u"x"_s + family).repeated(4000));
    row("accents of the last ASCII letter", u"x"_s.repeated(8000) + u"\u0301\u0323"_s,
        u"x"_s.repeated(8000) + u"\u0301\u0323"_s);
    row("trimmed before it is cut", u" "_s + u"x "_s.repeated(5000), u"x "_s.repeated(4000));
    row("white space without end", nineteen + u" \t"_s.repeated(200'000) + u'y', nineteen + u" y"_s);
    row("endless character", u"x"_s.repeated(30) + u"\u0301"_s.repeated(1'000'000), u"x"_s.repeated(29));
    empty("endless characters", (u"x"_s + u"\u0301"_s.repeated(1'000'000)).repeated(3));
    const QString heavy = u"x"_s + u"\u0301"_s.repeated(100); // 201 bytes
    row("cut at 256 KiB", heavy.repeated(8000), heavy.repeated(256 * 1024 / 201));
    row("256 KiB to the byte", u"x"_s.repeated(30) + u"\u0301"_s.repeated(131'057),
        u"x"_s.repeated(30) + u"\u0301"_s.repeated(131'057));
    row("256 KiB and an accent", u"x"_s.repeated(30) + u"\u0301"_s.repeated(131'058), u"x"_s.repeated(29));
}

void TextNormalizerTest::normalizes()
{
    QFETCH(QString, text);
    QFETCH(QString, outcome);
    const QByteArray utf8 = text.toUtf8();
    QCOMPARE(inWhole(utf8), outcome);
    QCOMPARE(inChunks(utf8, QList<qsizetype>(utf8.size(), 1)), outcome);
    for (qsizetype first = 0; first <= std::min<qsizetype>(utf8.size(), 60); ++first) {
        for (qsizetype second = 0; first + second <= std::min<qsizetype>(utf8.size(), 60);
             second += 1 + utf8.size() / 60)
            QCOMPARE(inChunks(utf8, { first, second }), outcome);
    }
}

void TextNormalizerTest::refuses_data()
{
    QTest::addColumn<QByteArray>("wrong");
    QTest::newRow("Latin-1") << "caf\xE9"_ba;
    QTest::newRow("continuation alone") << "\x80"_ba;
    QTest::newRow("overlong slash") << "\xC0\xAF"_ba;
    QTest::newRow("overlong of three bytes") << "\xE0\x9F\xBF"_ba;
    QTest::newRow("overlong of four bytes") << "\xF0\x8F\xBF\xBF"_ba;
    QTest::newRow("half of a pair") << "\xED\xA0\xBD"_ba;
    QTest::newRow("beyond the last code point") << "\xF4\x90\x80\x80"_ba;
    QTest::newRow("lead byte of five") << "\xF8\x88\x80\x80\x80"_ba;
    QTest::newRow("never used") << "\xFF"_ba;
    QTest::newRow("three bytes cut short") << "\xE6\xBC"_ba;
    QTest::newRow("four bytes cut short") << "\xF0\x9F\x98"_ba;
}

void TextNormalizerTest::refuses()
{
    QFETCH(QByteArray, wrong);
    const QByteArray letters(30, 'x');
    for (const QByteArray &utf8 : { wrong + letters, letters + wrong + letters, letters + wrong }) {
        for (qsizetype first = 0; first <= utf8.size(); ++first)
            QCOMPARE(inChunks(utf8, { first }), noText);
        QCOMPARE(inChunks(utf8, QList<qsizetype>(utf8.size(), 1)), noText);
    }
    // However much was right before, it is known at once and never forgotten.
    TextNormalizer normalizer;
    QVERIFY(normalizer.append(letters.repeated(10000)));
    QVERIFY(!normalizer.append(wrong + letters));
    QVERIFY(!normalizer.append(letters));
    QCOMPARE(describe(normalizer.finish()), noText);
}

void TextNormalizerTest::agreesOnRandomText()
{
    const QStringList parts { u"a"_s, u" "_s, u"\r\n"_s, u"é"_s, u"\u3000"_s, u"漢"_s, u"😀"_s, u"\u0301"_s, u"🇳"_s,
        u"\uFEFF"_s };
    QRandomGenerator random(20);
    for (int round = 0; round < 2000; ++round) {
        QByteArray utf8;
        for (int part = random.bounded(60); part > 0; --part)
            utf8 += parts[random.bounded(parts.size())].toUtf8();
        if (round % 4 == 0 && !utf8.isEmpty())
            utf8[random.bounded(utf8.size())] = static_cast<char>(random.bounded(256));
        QList<qsizetype> sizes;
        for (qsizetype rest = utf8.size(); rest > 0; rest -= sizes.last())
            sizes.append(random.bounded(1, std::min<int>(rest, 9) + 1));
        QVERIFY2(inChunks(utf8, sizes) == inWhole(utf8), utf8.toHex().constData());
    }
}

QTEST_GUILESS_MAIN(TextNormalizerTest)
#include "tst_TextNormalizer.moc"
