// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "renaming/targetName.h"

#include <QtTest>

using namespace Varlo;
using namespace Qt::StringLiterals;

class TargetNameTest : public QObject {
    Q_OBJECT
private slots:
    void takesName_data();
    void takesName();
    void refuses_data();
    void refuses();
    void knowsCurrentName_data();
    void knowsCurrentName();
    void fitsNumberedNames_data();
    void fitsNumberedNames();
    void mayBeEdited_data();
    void mayBeEdited();
    void givesFormerNameBackByteForByte();
};

static const QString family = u"👨‍👩‍👧‍👦"_s; // one character of 25 bytes

void TargetNameTest::takesName_data()
{
    QTest::addColumn<QByteArray>("current");
    QTest::addColumn<QString>("wanted");
    QTest::addColumn<QByteArray>("name");
    const auto row = [](const char *title, const char *current, const QString &wanted, const QByteArray &name) {
        QTest::newRow(title) << QByteArray(current) << wanted << name;
    };
    row("inner dot taken for an extension", "a.pdf", u"Report v1.2"_s, "Report v1.2.pdf");
    row("typed extension swallowed", "a.pdf", u"Report.pdf"_s, "Report.pdf.pdf");
    row("dot left behind a name without extension", "README", u"Notes"_s, "Notes");
    row("extension made small", "a.PDF", u"b"_s, "b.PDF");
    row("extension decoded", "a.p\xFF", u"b"_s, "b.p\xFF");
    row("hidden by a leading dot", "a.pdf", u".hidden"_s, "hidden.pdf");
    row("hidden by a dot behind a space", "a.pdf", u". .x"_s, "x.pdf");
    row("hidden file shown", ".profile", u".other"_s, ".other");
    row("DEL and a C1 control", "a.pdf", u"x\u007Fy\u009Bz"_s, "xyz.pdf");
    row("direction override", "a.exe", u"annex\u202Efdp"_s, "annexfdp.exe");
    row("direction isolate and mark", "a.pdf", u"\u2066x\u2069\u200F"_s, "x.pdf");
    row("zero width space and byte order mark", "a.pdf", u"pay\u200Bpal\uFEFF"_s, "paypal.pdf");
    row("soft hyphen and word joiner", "a.pdf", u"re\u00ADport\u2060s"_s, "reports.pdf");
    row("joiner between Latin letters", "a.pdf", u"pay\u200Dpal\u200C"_s, "paypal.pdf");
    row("tag characters", "a.pdf", u"x\U000E0041\U000E007F"_s, "x.pdf");
    row("noncharacter", "a.pdf", u"x\uFDD0y"_s, "xy.pdf");
    row("joiners of an emoji", "a.pdf", family, family.toUtf8() + ".pdf");
    row("joiner behind a variation selector", "a.pdf", u"🏳️‍🌈"_s, u"🏳️‍🌈.pdf"_s.toUtf8());
    row("joiner of Persian", "a.pdf", u"می\u200Cخواهم"_s, u"می\u200Cخواهم.pdf"_s.toUtf8());
    row("joiner behind a virama", "a.pdf", u"क्\u200Dष"_s, u"क्\u200Dष.pdf"_s.toUtf8());
    row("visible format character", "a.pdf", u"\u0601٣"_s, u"\u0601٣.pdf"_s.toUtf8());
    row("lone surrogate", "a.pdf", u"x"_s + QChar(0xD83D) + u'y', "x\xEF\xBF\xBDy.pdf");
    row("space uncovered at the start", "a.pdf", u"\u200B x"_s, "x.pdf");
    row("spaces that meet", "a.pdf", u"x \u200B y"_s, "x y.pdf");
    row("cut within a letter", "a.pdf", u"漢"_s.repeated(120), u"漢"_s.repeated(83).toUtf8() + ".pdf");
    row("cut within an emoji", "a.pdf", family.repeated(120), family.repeated(10).toUtf8() + ".pdf");
    row("cut behind a space", "a.pdf", u"漢"_s.repeated(83) + u" 漢"_s, u"漢"_s.repeated(83).toUtf8() + ".pdf");
    row("one character longer than a name", "a.pdf", u"e"_s + u"\u0301"_s.repeated(300),
        u"e"_s.toUtf8() + u"\u0301"_s.repeated(125).toUtf8() + ".pdf");
}

void TargetNameTest::takesName()
{
    QFETCH(QByteArray, current);
    QFETCH(QString, wanted);
    QFETCH(QByteArray, name);
    const auto target = targetName(current.toStdString(), wanted);
    QVERIFY(target);
    QCOMPARE(QByteArray::fromStdString(target->candidate(1)), name);
    QVERIFY(!target->isCurrentName);
}

void TargetNameTest::refuses_data()
{
    QTest::addColumn<QString>("wanted");
    QTest::addColumn<QByteArray>("current");
    QTest::newRow("only quotes and illegal characters") << u" \"'/:?* "_s << QByteArray("a.pdf");
    QTest::newRow("only invisible characters") << u"\u200B\u202E\u0085"_s << QByteArray("a.pdf");
    QTest::newRow("only dots") << u"..."_s << QByteArray("a.pdf");
    QTest::newRow("the folder above, for a hidden file") << u".."_s << QByteArray(".profile");
    QTest::newRow("no room beside the extension") << u"é"_s << 'a' + QByteArray(".") + QByteArray(253, 'x');
}

void TargetNameTest::refuses()
{
    QFETCH(QString, wanted);
    QFETCH(QByteArray, current);
    const auto target = targetName(current.toStdString(), wanted);
    QVERIFY(!target && target.error() == RenameError::InvalidName);
}

void TargetNameTest::knowsCurrentName_data()
{
    QTest::addColumn<QByteArray>("current");
    QTest::addColumn<QString>("wanted");
    QTest::addColumn<bool>("isCurrent");
    QTest::newRow("same") << QByteArray("Scan.pdf") << u"Scan"_s << true;
    QTest::newRow("same once cleaned") << QByteArray("Scan.pdf") << u" \"Sc/an\u200B\" "_s << true;
    QTest::newRow("letter case") << QByteArray("scan.pdf") << u"Scan"_s << false;
    QTest::newRow("accent composed otherwise") << QByteArray("e\xCC\x81.pdf") << u"é"_s << true;
    QTest::newRow("accent missing") << QByteArray("e.pdf") << u"é"_s << false;
    QTest::newRow("two names of undecodable bytes") << QByteArray("\xFF.pdf") << u"\uFFFD"_s << false;
    QTest::newRow("name at the limit") << u"漢"_s.repeated(83).toUtf8() + ".pdf" << u"漢"_s.repeated(120) << true;
}

void TargetNameTest::knowsCurrentName()
{
    QFETCH(QByteArray, current);
    QFETCH(QString, wanted);
    const auto target = targetName(current.toStdString(), wanted);
    QVERIFY(target);
    QTEST(target->isCurrentName, "isCurrent");
}

void TargetNameTest::fitsNumberedNames_data()
{
    QTest::addColumn<QString>("wanted");
    QTest::addColumn<int>("limit");
    QTest::newRow("CJK") << u"漢"_s.repeated(120) << 255;
    QTest::newRow("family emoji") << family.repeated(120) << 255;
    QTest::newRow("an encrypted folder's limit") << u"漢"_s.repeated(120) << 143;
    QTest::newRow("one byte too many with its number") << u"x"_s.repeated(120) << 126;
}

void TargetNameTest::fitsNumberedNames()
{
    QFETCH(QString, wanted);
    QFETCH(int, limit);
    const auto target = targetName("a.pdf", wanted);
    QVERIFY(target);
    const std::string name = target->candidate(99, static_cast<std::size_t>(limit));
    QVERIFY(name.size() <= static_cast<std::size_t>(limit));
    QVERIFY(name.ends_with(" 99.pdf"));
    const QString base = QString::fromStdString(name).chopped(7);
    QVERIFY(!base.isEmpty() && wanted.startsWith(base));
    QVERIFY(!base.endsWith(QChar(0x200D)));
}

void TargetNameTest::mayBeEdited_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("shown");
    QTest::newRow("space lost behind a word, where the next one is typed") << u"Invoice "_s << u"Invoice "_s;
    QTest::newRow("joiner lost before what it joins is typed") << u"می\u200C"_s << u"می\u200C"_s;
    QTest::newRow("direction turned in the field") << u"annex\u202Efdp"_s << u"annexfdp"_s;
    QTest::newRow("line breaks") << u"a\nb\u2028c\u2029d"_s << u"ab c d"_s;
    QTest::newRow("a letter that takes a second to draw")
        << u"e"_s + u"\u0301"_s.repeated(100'000) << u"e"_s + u"\u0301"_s.repeated(127);
}

void TargetNameTest::mayBeEdited()
{
    QFETCH(QString, name);
    QTEST(editableName(name), "shown");
}

void TargetNameTest::givesFormerNameBackByteForByte()
{
    const std::string former = ".a:b\xFF\n ";
    QCOMPARE(formerName("x.pdf", former).candidate(1), former + ".pdf");
    QVERIFY(formerName("x.pdf", "x").isCurrentName);
    QVERIFY(!formerName("e\xCC\x81.pdf", "\xC3\xA9").isCurrentName);
}

QTEST_GUILESS_MAIN(TargetNameTest)
#include "tst_targetName.moc"
