// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/elidedInMiddle.h"
#include <QTest>

using namespace Varlo;
using namespace Qt::StringLiterals;

class ElidedInMiddleTest : public QObject {
    Q_OBJECT
private slots:
    void elides_data();
    void elides();
};

void ElidedInMiddleTest::elides_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("columns");
    QTest::addColumn<QString>("shown");
    const auto row = [](const char *slip, const QString &text, int columns, const QString &shown) {
        QTest::newRow(slip) << text << columns << shown;
    };
    row("cut though it fits", u"abcde"_s, 5, u"abcde"_s);
    row("a column unused", u"abcdefgh"_s, 6, u"abc…gh"_s);
    row("wide ones counted once", u"日本語日本語"_s, 7, u"日…語"_s);
    row("half a wide one", u"日本語日本語"_s, 6, u"日…語"_s);
    row("accent lost", u"e\u0301e\u0301e\u0301e\u0301"_s, 3, u"e\u0301…e\u0301"_s);
    row("accents counted", u"e\u0301e\u0301e\u0301e\u0301"_s, 4, u"e\u0301e\u0301e\u0301e\u0301"_s);
    row("one column", u"abc"_s, 1, u"…"_s);
    row("no column", u"abc"_s, 0, u""_s);
}

void ElidedInMiddleTest::elides()
{
    QFETCH(QString, text);
    QFETCH(int, columns);
    QTEST(elidedInMiddle(text, columns), "shown");
}

QTEST_GUILESS_MAIN(ElidedInMiddleTest)
#include "tst_elidedInMiddle.moc"
