// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "suggestion/interpretReply.h"
#include "suggestion/sanitizeFilename.h"
#include <QTest>

using namespace Varlo;
using namespace Qt::StringLiterals;

class InterpretReplyTest : public QObject {
    Q_OBJECT
private slots:
    void takesName_data();
    void takesName();
    void refuses_data();
    void refuses();
    void cleans_data();
    void cleans();
};

void InterpretReplyTest::takesName_data()
{
    QTest::addColumn<QString>("reply");
    QTest::addColumn<bool>("includeTags");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QStringList>("tags");
    const auto row = [](const char *slip, const QString &reply, bool includeTags, const QString &name,
                         const QStringList &tags = {}) { QTest::newRow(slip) << reply << includeTags << name << tags; };
    row("quotes kept", u"  \"2025-03-01 - Acme - Invoice\"  "_s, false, u"2025-03-01 - Acme - Invoice"_s);
    row("tag repeated", u"2024-05-01 - Invoice\nTAGS: Invoice, ACME, invoice, , 2024"_s, true,
        u"2024-05-01 - Invoice"_s, { u"invoice"_s, u"acme"_s, u"2024"_s });
    row("marker's case", u"Invoice\ntags: a,b,c,d,e,f,g"_s, true, u"Invoice"_s,
        { u"a"_s, u"b"_s, u"c"_s, u"d"_s, u"e"_s });
    row("last marker taken", u"Invoice TAGS: a, Tags: b"_s, true, u"Invoice"_s, { u"a"_s, u"tags: b"_s });
    row("tags demanded", u"Just a name"_s, true, u"Just a name"_s);
    row("tags unasked for", u"Invoice\nTAGS: x"_s, false, u"InvoiceTAGS x"_s);
    row("tag of 30, tag of 31", u"N\nTAGS:"_s + u"a"_s.repeated(31) + u","_s + u"é"_s.repeated(30), true, u"N"_s,
        { u"é"_s.repeated(30) });
    row("tag counted in units", u"N\nTAGS: "_s + u"👍🏽"_s.repeated(30), true, u"N"_s,
        { u"👍🏽"_s.repeated(30) });
    row("skipped tags counted", u"N TAGS: ,,"_s + (u"b"_s.repeated(40) + u","_s).repeated(5) + u"c"_s, true, u"N"_s,
        { u"c"_s });
    row("tag cleaned", u"N\nTAGS: a/b: \"c\"\nsecond line, \u00a0D\u2003"_s, true, u"N"_s,
        { u"a/b: \"c\"\nsecond line"_s, u"d"_s });
    row("90 characters", u"é"_s.repeated(90), true, u"é"_s.repeated(90));
    row("90 emoji", u"👩🏽"_s.repeated(90), false, u"👩🏽"_s.repeated(90));
    row("tags counted into the name", u"a"_s.repeated(90) + u"\nTAGS: b"_s, true, u"a"_s.repeated(90), { u"b"_s });
    row("white space counted into the name", u"\n\u2003 "_s + u"a"_s.repeated(90) + u" \u0085"_s, true,
        u"a"_s.repeated(90));
    row("marker in lower case", u"no_content"_s, false, u"no_content"_s);
    row("path climbs", u"../../.ssh/authorized_keys"_s, false, u".....sshauthorized_keys"_s);
    row("path from the root", u"/etc/passwd"_s, false, u"etcpasswd"_s);
    row("path of another system", u"C:\\x\\a/b"_s, false, u"Cxab"_s);
    row("NUL and escape sequence", u"a\0\x1b[31mb\x07"_s, false, u"a[31mb"_s);
}

void InterpretReplyTest::takesName()
{
    QFETCH(QString, reply);
    QFETCH(bool, includeTags);
    const auto suggestion = interpretReply(reply, includeTags);
    QVERIFY(suggestion);
    QTEST(suggestion->name, "name");
    QTEST(suggestion->tags, "tags");
}

void InterpretReplyTest::refuses_data()
{
    QTest::addColumn<QString>("reply");
    QTest::addColumn<ReplyError>("error");
    QTest::newRow("marker behind a name") << u"Invoice NO_CONTENT"_s << ReplyError::NoReadableContent;
    QTest::newRow("marker among the tags") << u"Invoice\nTAGS: NO_CONTENT"_s << ReplyError::NoReadableContent;
    QTest::newRow("marker in a name too long")
        << u"a"_s.repeated(100) + u"NO_CONTENT"_s << ReplyError::NoReadableContent;
    QTest::newRow("one too many") << u"a"_s.repeated(91) << ReplyError::InvalidResponse;
    QTest::newRow("one too many, in emoji") << u"👩🏽"_s.repeated(91) << ReplyError::InvalidResponse;
    QTest::newRow("length after cleaning") << u"/"_s.repeated(91) + u"a"_s << ReplyError::InvalidResponse;
    QTest::newRow("only quotes") << u"\"'`\""_s << ReplyError::InvalidResponse;
    QTest::newRow("only slashes") << u" / // "_s << ReplyError::InvalidResponse;
    QTest::newRow("tags alone") << u"TAGS: a, b"_s << ReplyError::InvalidResponse;
    QTest::newRow("nothing") << QString() << ReplyError::InvalidResponse;
}

void InterpretReplyTest::refuses()
{
    QFETCH(QString, reply);
    QFETCH(ReplyError, error);
    QVERIFY(interpretReply(reply, true) == tl::make_unexpected(error));
}

void InterpretReplyTest::cleans_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("clean");
    QTest::newRow("slash replaced") << u"'Report: Q1/Q2'"_s << u"Report Q1Q2"_s;
    QTest::newRow("tab made a space") << u"Name\twith   many\nspaces"_s << u"Namewith manyspaces"_s;
    QTest::newRow("inner quotation marks") << u"`It's 5\" wide'"_s << u"It's 5 wide"_s;
    QTest::newRow("quotation marks within spaces") << u"\" 'a' \""_s << u"'a'"_s;
    QTest::newRow("quotation marks of a line") << u"a'\n'b"_s << u"a''b"_s;
    QTest::newRow("other white space") << u"a\u00a0\u2003\u2028b"_s << u"a b"_s;
    QTest::newRow("space left by what went") << u"a / : b ?"_s << u"a b"_s;
    QTest::newRow("dots") << u"v1.2.pdf"_s << u"v1.2.pdf"_s;
    QTest::newRow("200 characters") << u"é"_s.repeated(200) << u"é"_s.repeated(120);
    QTest::newRow("cut before the deletions") << u"*a"_s.repeated(120) << u"a"_s.repeated(120);
    QTest::newRow("only quotation marks") << u"\"\"\""_s << QString();
    QTest::newRow("first control character that stays") << u"\x1f!\x7f"_s << u"!\x7f"_s;
}

void InterpretReplyTest::cleans()
{
    QFETCH(QString, name);
    QTEST(sanitizeFilename(name), "clean");
}

QTEST_GUILESS_MAIN(InterpretReplyTest)
#include "tst_interpretReply.moc"
