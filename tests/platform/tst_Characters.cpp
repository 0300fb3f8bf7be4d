// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/Characters.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace Varlo;

class CharactersTest : public QObject {
    Q_OBJECT
private slots:
    void divides_data();
    void divides();
    void cuts_data();
    void cuts();
    void measuresCells_data();
    void measuresCells();
};

// Each text is written with a bar where one character ends and the next one begins.
void CharactersTest::divides_data()
{
    QTest::addColumn<QString>("barred");
    QTest::newRow("joined family") << u"👩‍👩‍👧‍👦|👩🏽|x"_s;
    QTest::newRow("joiner behind a letter joins no emoji") << u"a\u200D|👦"_s;
    QTest::newRow("flags pair up from the left") << u"🇳🇱|🇪🇸|🇬"_s;
    QTest::newRow("flags pair up anew behind a letter") << u"🇳|a|🇱🇪|🇸"_s;
    QTest::newRow("Hangul from its letters") << u"\u1112\u1161\u11AB|\u1100\u1173\u11AF"_s;
    QTest::newRow("Hangul syllable with a final") << u"가\u11A8|각\u11A8|a|\u11A8\u11A8|가"_s;
    QTest::newRow("stacked accents") << u"e\u0301\u0323|n\u0303"_s;
    QTest::newRow("units that stand alone, and one that does not") << u"é|漢|я|\u3042|я\u0483|x"_s;
    QTest::newRow("accents on nothing") << u"\n|\u0301|a"_s;
    QTest::newRow("line break of two units") << u"a|\r\n|\n|\r|b"_s;
    QTest::newRow("vowel sign that takes space") << u"कि|க்|ஷி"_s;
    QTest::newRow("sign that stands before its letter") << u"\u0600\u0661|\u0661"_s;
    QTest::newRow("keycap and variation selector") << u"1\uFE0F\u20E3|❤\uFE0F"_s;
    QTest::newRow("flag in tags") << u"🏴\U000E0067\U000E0062\U000E0073\U000E0063\U000E0074\U000E007F|🏴"_s;
    QTest::newRow("NUL and other controls") << u"a|\0|\0|b|\u200B|\u0301"_s;
    QTest::newRow("half a pair") << u"a|"_s + QChar(0xD83D) + u"|b"_s;
}

void CharactersTest::divides()
{
    QFETCH(QString, barred);
    const QStringList characters = barred.split(u'|');
    const QString text = characters.join(QString());
    QCOMPARE(countCharacters(text, 100), characters.size());
    QCOMPARE(countCharacters(text, 1), 1);
    for (qsizetype count = 0; count <= characters.size(); ++count)
        QCOMPARE(firstCharacters(text, count).toString(), characters.first(count).join(QString()));
}

void CharactersTest::cuts_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("bytes");
    QTest::addColumn<QString>("cut");
    QTest::newRow("bytes, not units") << u"ééé"_s << 3 << 5 << u"éé"_s;
    QTest::newRow("exact fit") << u"ééé"_s << 3 << 6 << u"ééé"_s;
    QTest::newRow("three bytes each") << u"漢字"_s << 2 << 5 << u"漢"_s;
    QTest::newRow("pair is four bytes") << u"😀😀"_s << 2 << 8 << u"😀😀"_s;
    QTest::newRow("not inside a pair") << u"😀😀"_s << 2 << 7 << u"😀"_s;
    QTest::newRow("not before an accent") << u"ae\u0301"_s << 9 << 3 << u"a"_s;
    QTest::newRow("first one is too long") << u"e\u0301\u0301"_s << 9 << 4 << u""_s;
    QTest::newRow("count is reached first") << u"abc"_s << 2 << 3 << u"ab"_s;
}

void CharactersTest::cuts()
{
    QFETCH(QString, text);
    QFETCH(int, count);
    QFETCH(int, bytes);
    QTEST(firstCharacters(text, count, bytes).toString(), "cut");
}

void CharactersTest::measuresCells_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("cells");
    QTest::newRow("accent apart from its letter") << u"e\u0301t"_s << 2;
    QTest::newRow("wide and half-width forms") << u"漢Ａｱ"_s << 5;
    QTest::newRow("family is one emoji") << u"👩‍👩‍👧‍👦"_s << 2;
    QTest::newRow("flag") << u"🇳🇱"_s << 2;
    QTest::newRow("heart as text and as emoji") << u"❤❤\uFE0F"_s << 3;
    QTest::newRow("Hangul from its letters") << u"\u1112\u1161\u11AB"_s << 2;
    QTest::newRow("controls of direction and width") << u"a\u202E\u200Bb"_s << 2;
}

void CharactersTest::measuresCells()
{
    QFETCH(QString, text);
    QTEST(terminalWidth(text), "cells");
}

QTEST_GUILESS_MAIN(CharactersTest)
#include "tst_Characters.moc"
