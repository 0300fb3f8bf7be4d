// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/visibleText.h"
#include <QTest>

using namespace Varlo;
using namespace Qt::StringLiterals;

class VisibleTextTest : public QObject {
    Q_OBJECT
private slots:
    void escapesText_data();
    void escapesText();
    void escapesPath_data();
    void escapesPath();
};

void VisibleTextTest::escapesText_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("shown");
    const auto row
        = [](const char *slip, const QString &text, const QString &shown) { QTest::newRow(slip) << text << shown; };
    row("line break", u"a\nb\rc\td"_s, u"a\\nb\\rc\\td"_s);
    row("escape sequence", u"\x1b[31m\x07"_s, u"\\033[31m\\007"_s);
    row("DEL", u"\x7f"_s, u"\\177"_s);
    row("escape sequence of C1", u"\u009b31m"_s, u"\\u009b31m"_s);
    row("direction turned", u"\u202egpj.exe\u2066"_s, u"\\u202egpj.exe\\u2066"_s);
    row("hidden space", u"a\u200bb\ufeff"_s, u"a\\u200bb\\ufeff"_s);
    row("line separator", u"a\u2028b"_s, u"a\\u2028b"_s);
    row("tag characters", u"\U000e0041"_s, u"\\U000e0041"_s);
    row("half a pair", QString(QChar(0xD83D)), u"\\ud83d"_s);
    row("emoji torn apart", u"👩‍👩‍👧 ❤️"_s, u"👩‍👩‍👧 ❤️"_s);
    row("Persian torn apart", u"می‌خواهم"_s, u"می‌خواهم"_s);
    row("accents", u"é e\u0301 ß"_s, u"é e\u0301 ß"_s);
}

void VisibleTextTest::escapesText()
{
    QFETCH(QString, text);
    QTEST(visibleText(text), "shown");
}

void VisibleTextTest::escapesPath_data()
{
    QTest::addColumn<QByteArray>("path");
    QTest::addColumn<QString>("shown");
    const auto row
        = [](const char *slip, const QByteArray &path, const QString &shown) { QTest::newRow(slip) << path << shown; };
    row("byte of Latin 1", "caf\xe9.pdf", u"caf\\351.pdf"_s);
    row("overlong slash", "\xc0\xaf", u"\\300\\257"_s);
    row("cut short", "a\xe2\x82", u"a\\342\\202"_s);
    row("C1 in two bytes", "\xc2\x9b", u"\\u009b"_s);
    row("UTF-8", "Caf\xc3\xa9", u"Café"_s);
}

void VisibleTextTest::escapesPath()
{
    QFETCH(QByteArray, path);
    QTEST(visibleText(std::filesystem::path(path.toStdString())), "shown");
}

QTEST_GUILESS_MAIN(VisibleTextTest)
#include "tst_visibleText.moc"
