// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "extraction/office/collectXMLText.h"

#include <QStringEncoder>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace Varlo;

class CollectXMLTextTest : public QObject {
    Q_OBJECT
private slots:
    void collects_data();
    void collects();
    void stopsWithEnough_data();
    void stopsWithEnough();
    void stopsInsideAText();
    void copesWithSize_data();
    void copesWithSize();
};

static QByteArray utf16(const QString &document)
{
    QStringEncoder encoder(QStringEncoder::Utf16BE, QStringEncoder::Flag::WriteBom);
    return encoder.encode(document);
}

void CollectXMLTextTest::collects_data()
{
    QTest::addColumn<QByteArray>("document");
    QTest::addColumn<QString>("text");
    const auto row = [](const char *name, const QByteArray &document, const QString &text) {
        QTest::newRow(name) << document << text;
    };
    row("runs of one word", "<w:p><w:r><w:t>Inv</w:t></w:r><w:r><w:t>oice</w:t></w:r></w:p>", u"Inv oice"_s);
    row("every prefix and none", "<r><t>a</t><a:t>b</a:t><très:t>c</très:t></r>"_ba, u"a b c"_s);
    row("names that are nearly t", "<r><wt>a</wt><T>b</T><t:x>c</t:x><w:T>d</w:T><delText>e</delText></r>", u""_s);
    row("text outside", "<r>a<v>1</v><t>b</t>c<t>d</t>e</r>", u"b d"_s);
    row("elements inside", "<t>a<b>b</b>c<t>d</t>e</t>", u"abc d"_s);
    row("references", "<t>&lt;&#233;&#x1F600;&amp;&gt; &quot;&apos;</t>", u"<é😀&> \"'"_s);
    row("U+FEFF within", "<t>\uFEFFa<!-- -->\uFEFFb</t>"_ba, u"\uFEFFa\uFEFFb"_s);
    row("CDATA, comments, instructions", "<t>a<![CDATA[b]]>c<!-- d --><?e f?>g</t>", u"acg"_s);
    row("byte order mark", "\uFEFF<?xml version='1.0' encoding='UTF-8'?><t>é</t>"_ba, u"é"_s);
    row("UTF-16", utf16(u"<?xml version='1.0' encoding='UTF-16'?><w:t>é漢😀</w:t>"_s), u"é漢😀"_s);
    row("ISO-8859-1", "<?xml version='1.0' encoding='ISO-8859-1'?><t>\xE9</t>"_ba, u"é"_s);
    row("encoding that there is not", "<?xml version='1.0' encoding='x-none'?><t>a</t>", u""_s);
    row("not UTF-8", "<r><t>a</t><t>\xFF</t></r>"_ba, u"a "_s);
    row("cut inside a tag", "<r><t>a</t><t>b</t", u"a b"_s);
    row("wrong end tag", "<r><t>a</t></s><t>b</t></r>", u"a"_s);
    row("entity of its own", "<!DOCTYPE r [<!ENTITY e 'c'>]><r><t>a&e;b</t></r>", u"ab"_s);
    row("markup in an entity", "<!DOCTYPE r [<!ENTITY e '<t>b</t>'>]><r><t>a</t>&e;<t>c</t></r>", u"a c"_s);
    row("entity in an attribute", "<!DOCTYPE r [<!ENTITY e 'c'>]><r><t>a</t><b c='&e;'/><t>d</t></r>", u"a d"_s);
    row("entity elsewhere", "<!DOCTYPE r [<!ENTITY e SYSTEM '/etc/passwd'>]><r><t>a&e;b</t></r>", u"ab"_s);
    row("declarations elsewhere", "<!DOCTYPE r SYSTEM '/etc/passwd'><r><t>a&e;b</t></r>", u"ab"_s);
    row("declarations in an entity", "<!DOCTYPE r [<!ENTITY % p SYSTEM '/etc/passwd'>%p;]><r><t>a&e;b</t></r>",
        u"ab"_s);
    row("1000 levels", "<r>"_ba.repeated(999) + "<t>a</t></r><t>b</t>", u"a b"_s);
    row("1001 levels", "<r><t>a</t>" + "<r>"_ba.repeated(999) + "<t>b</t>", u"a"_s);
}

void CollectXMLTextTest::collects()
{
    QFETCH(QByteArray, document);
    QTEST(collectXMLText(document), "text");
}

void CollectXMLTextTest::stopsWithEnough_data()
{
    QTest::addColumn<QString>("document");
    QTest::addColumn<QString>("text");
    const auto row = [](const char *name, const QString &first, const QString &text) {
        QTest::newRow(name) << u"<r><t>%1</t><t>y</t><t>z</t></r>"_s.arg(first) << text;
    };
    const QString letters = u"x"_s.repeated(12000);
    const QString families = u"👩‍👩‍👧‍👦"_s.repeated(2000) + u"x"_s.repeated(10000);
    row("12,000 are not more than 12,000", letters, letters + u" y"_s);
    row("one more", letters + u'x', letters + u'x');
    row("spaces between texts do not count", u"</t><t>"_s.repeated(100) + letters,
        u" "_s.repeated(100) + letters + u" y"_s);
    row("units do not count", families, families + u" y"_s);
    row("accents do not count", letters + u'\u0301', letters + u"\u0301 y"_s);
    row("each piece counts by itself", letters + u"&#x301;"_s, letters + u'\u0301');
    row("piece that goes far beyond", letters.repeated(4), letters.repeated(4));
}

void CollectXMLTextTest::stopsWithEnough()
{
    QFETCH(QString, document);
    QTEST(collectXMLText(document.toUtf8()), "text");
}

// In UTF-16 the parser's pieces are short, and it goes on telling the rest of a text that it was to stop in.
void CollectXMLTextTest::stopsInsideAText()
{
    const QString text = collectXMLText(utf16(u"<t>"_s + u"x"_s.repeated(50000) + u"</t>"_s));
    QVERIFY(text.size() > 12000);
    QVERIFY(text.size() < 14000);
}

// Each of these takes longer than the test may, or more memory than there is, where it is done the obvious way.
void CollectXMLTextTest::copesWithSize_data()
{
    QTest::addColumn<QByteArray>("document");
    QTest::addColumn<QString>("text");
    QByteArray laughs = "<!DOCTYPE r [<!ENTITY l0 'ha'>";
    for (int level = 1; level < 30; ++level)
        laughs += QByteArray("<!ENTITY l%2 '&l%1;&l%1;&l%1;&l%1;&l%1;&l%1;&l%1;&l%1;&l%1;&l%1;'>")
                      .replace("%1", QByteArray::number(level - 1))
                      .replace("%2", QByteArray::number(level));
    QTest::newRow("billion laughs") << laughs + "]><r><t>a&l29;b</t></r>" << u"ab"_s;
    QTest::newRow("billion laughs in an attribute") << laughs + "]><r><t>a</t><t b='&l29;'>b</t></r>" << u"a"_s;
    const QByteArray megabyte(1 << 20, 'x');
    const QByteArray quadratic = "<!DOCTYPE r [<!ENTITY e '" + megabyte + "'>]><r><t>a";
    QTest::newRow("quadratic entity") << quadratic + "&e;"_ba.repeated(1'000'000) + "</t></r>" << u"a"_s;
    QTest::newRow("quadratic entity in an attribute")
        << quadratic + "</t><b c='" + "&e;"_ba.repeated(1'000'000) + "'/></r>" << u"a"_s;
    QByteArray attributes;
    for (int number = 0; number < 400'000; ++number)
        attributes += " a" + QByteArray::number(number, 36) + "=''";
    QTest::newRow("400,000 attributes") << "<r><t" + attributes + ">a</t></r>" << u"a"_s;
    QTest::newRow("2,000,000 levels") << "<r><t>a</t>" + "<t>"_ba.repeated(2'000'000) << u"a"_s + u" "_s.repeated(999);
    QTest::newRow("attribute of 4 MB") << "<r><t b='" + megabyte.repeated(4) + "'>a</t></r>" << u"a"_s;
    QTest::newRow("attribute of 4 MB, cut short") << "<r><t>a</t><t b='" + megabyte.repeated(4) << u"a"_s;
    QTest::newRow("name of 4 MB") << "<r><t>a</t><" + megabyte.repeated(4) + "/></r>" << u"a"_s;
}

void CollectXMLTextTest::copesWithSize()
{
    QFETCH(QByteArray, document);
    QTEST(collectXMLText(document), "text");
}

QTEST_GUILESS_MAIN(CollectXMLTextTest)
#include "tst_collectXMLText.moc"
