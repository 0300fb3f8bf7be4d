// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "notify/suggestionsText.h"

#include <QTest>

using namespace Varlo;
using namespace Qt::StringLiterals;

class SuggestionsTextTest : public QObject {
    Q_OBJECT
private slots:
    void comesBackWhole();
    void givesNoNames_data();
    void givesNoNames();
};

void SuggestionsTextTest::comesBackWhole()
{
    // An identity above 2^53, where a number of JSON would have become another.
    const std::vector<SuggestedFile> files {
        { "/a\xff\n.txt", { 0xFFFFFFFFFFFFFFFF, 9007199254740993 }, u"Caf\u00e9 \U0001F469\U0001F3FD"_s, { u"one"_s } },
        { "/b.txt", { 1, 2 }, u"\"[]{},:"_s, {} },
    };
    QVERIFY(suggestedFiles({ "/a\xff\n.txt", "/b.txt" }, suggestionsText(files)) == files);
}

void SuggestionsTextTest::givesNoNames_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("none") << u""_s;
    QTest::newRow("cut off") << uR"([{"name":"x","device":"1","inode":"2")"_s;
    QTest::newRow("not an array") << uR"({"name":"x","device":"1","inode":"2"})"_s;
    QTest::newRow("for more files than there are")
        << uR"([{"name":"x","device":"1","inode":"2"},{"name":"y","device":"1","inode":"3"}])"_s;
    QTest::newRow("not an object") << uR"(["x"])"_s;
    QTest::newRow("of no file in particular") << uR"([{"name":"x","device":"1"}])"_s;
    QTest::newRow("identity of another kind") << uR"([{"name":"x","device":1,"inode":2}])"_s;
    QTest::newRow("identity that is no number") << uR"([{"name":"x","device":"1","inode":"-2"}])"_s;
    QTest::newRow("without a name") << uR"([{"device":"1","inode":"2","tags":["x"]}])"_s;
    QTest::newRow("name of another kind") << uR"([{"name":["x"],"device":"1","inode":"2"}])"_s;
    QTest::newRow("nested without end") << u"["_s.repeated(100'000);
}

void SuggestionsTextTest::givesNoNames()
{
    QFETCH(QString, text);
    QVERIFY(suggestedFiles({ "/a.txt" }, text).empty());
}

QTEST_GUILESS_MAIN(SuggestionsTextTest)
#include "tst_suggestionsText.moc"
