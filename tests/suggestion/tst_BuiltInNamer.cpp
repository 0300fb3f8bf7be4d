// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/Characters.h"
#include "suggestion/BuiltInNamer.h"
#include <QCoroTask>
#include <QDirIterator>
#include <QElapsedTimer>
#include <QRegularExpression>
#include <QTest>

using namespace Varlo;
using namespace Qt::StringLiterals;

class BuiltInNamerTest : public QObject {
    Q_OBJECT
private slots:
    void namesCorpus_data();
    void namesCorpus();
    void listsOnlyRowsThatExist();
    void namesPicture_data();
    void namesPicture();
    void readsDate_data();
    void readsDate();
    void readsAmount_data();
    void readsAmount();
    void keepsDateAndAmountOfLongName_data();
    void keepsDateAndAmountOfLongName();
    void findsNothing_data();
    void findsNothing();
    void endsQuicklyOnHostileText_data();
    void endsQuicklyOnHostileText();
};

static const QString corpus = QStringLiteral(VARLO_SOURCE_DIR "/tests/suggestion/corpus");

static QString readAll(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

/// Rows of known-misses.txt: the row's name, ": ", the reason.
static QHash<QString, QString> knownMisses()
{
    QHash<QString, QString> misses;
    const QStringList lines = readAll(corpus + u"/known-misses.txt"_s).split(u'\n', Qt::SkipEmptyParts);
    for (const QString &line : lines) {
        if (!line.startsWith(u'#'))
            misses.insert(line.section(u": "_s, 0, 0), line.section(u": "_s, 1));
    }
    return misses;
}

/// "template=invoice language=nl" in front of an expected name.
static SuggestionRequest requestFor(const QString &options, const QString &text)
{
    SuggestionRequest request;
    request.content = TextContent { firstCharacters(text.simplified(), 8000).toString() };
    const QStringList pieces = options.split(u' ', Qt::SkipEmptyParts);
    for (const QString &piece : pieces) {
        const QString value = piece.section(u'=', 1);
        if (piece.startsWith("language="_L1))
            request.language = filenameLanguage(value).value();
        for (const NameTemplate &builtIn : builtInTemplates()) {
            if (piece.startsWith("template="_L1) && builtIn.id == value)
                request.nameTemplate = builtIn;
        }
    }
    return request;
}

void BuiltInNamerTest::namesCorpus_data()
{
    QTest::addColumn<SuggestionRequest>("request");
    QTest::addColumn<QString>("expected");
    static const QRegularExpression option(u"^((?:(?:template|language)=\\w+ ?)+|tags): (.*)$"_s);
    QDirIterator files(corpus, { u"*.expected"_s }, QDir::Files, QDirIterator::Subdirectories);
    QMap<QString, QString> paths;
    while (files.hasNext()) {
        const QFileInfo info(files.next());
        paths.insert(info.dir().dirName() + u'/' + info.completeBaseName(), info.filePath());
    }
    QVERIFY(!paths.isEmpty());
    for (auto path = paths.constBegin(); path != paths.constEnd(); ++path) {
        const QFileInfo info(*path);
        QStringList documents = info.dir().entryList({ info.completeBaseName() + u".*"_s }, QDir::Files);
        documents.removeAll(info.fileName());
        QCOMPARE(documents.size(), 1);
        const QString text = readAll(info.dir().filePath(documents.first()));
        const QStringList lines = readAll(*path).split(u'\n', Qt::SkipEmptyParts);
        for (const QString &line : lines) {
            const QRegularExpressionMatch match = option.match(line);
            SuggestionRequest request = requestFor(match.captured(1), text);
            request.includeTags = match.captured(1) == "tags"_L1;
            const QString suffix = match.hasMatch() ? u' ' + match.captured(1) : QString();
            QTest::newRow(qPrintable(path.key() + suffix)) << request << (match.hasMatch() ? match.captured(2) : line);
        }
    }
}

/// A pattern that does not compile only warns, and finds nothing ever after.
static void failOnBrokenPattern() { QTest::failOnWarning(QRegularExpression(u"invalid QRegularExpression"_s)); }

void BuiltInNamerTest::namesCorpus()
{
    failOnBrokenPattern();
    QFETCH(SuggestionRequest, request);
    QFETCH(QString, expected);
    const auto suggestion = nameFromContent(request);
    const QString name = suggestion ? suggestion->name : QString();
    const QString found = request.includeTags && suggestion ? suggestion->tags.join(u", "_s) : name;
    const QString row = QString::fromUtf8(QTest::currentDataTag());
    if (knownMisses().contains(row)) {
        QVERIFY2(found != expected, "this row passes now: take it out of known-misses.txt");
        return;
    }
    QCOMPARE(found, expected);
}

void BuiltInNamerTest::listsOnlyRowsThatExist()
{
    const QStringList rows = knownMisses().keys();
    for (const QString &row : rows) {
        const QStringList found = QDir(corpus).entryList(
            { row.section(u' ', 0, 0).section(u'/', 0, 0) }, QDir::Dirs | QDir::NoDotAndDotDot);
        const QString file = corpus + u'/' + row.section(u' ', 0, 0) + u".expected"_s;
        QVERIFY2(!found.isEmpty() && QFile::exists(file), qPrintable(row));
        QVERIFY2(!knownMisses().value(row).isEmpty(), qPrintable(row));
    }
}

static SuggestionRequest requestForPicture(const QString &facts, FilenameLanguage language)
{
    SuggestionRequest request;
    const QString header
        = u"PHOTO METADATA (facts about this file — use for the date and, where relevant, the device; never invent "
          u"values beyond these):\n"_s;
    request.content = ImageContent { {}, u"image/jpeg"_s, header + facts };
    request.language = language;
    return request;
}

void BuiltInNamerTest::namesPicture_data()
{
    QTest::addColumn<QString>("facts");
    QTest::addColumn<FilenameLanguage>("language");
    QTest::addColumn<QString>("name");
    using enum FilenameLanguage;
    QTest::newRow("line feed taken for part of the date") << u"- Date taken: 2024-06-01\n- Camera: Apple iPhone 13"_s
                                                          << Auto << u"2024-06-01 - Photo - Apple iPhone 13"_s;
    QTest::newRow("type word not translated") << u"- Date taken: 2024-06-01"_s << Dutch << u"2024-06-01 - Foto"_s;
    QTest::newRow("date of the file not used")
        << u"- File date (approximate): 2023-02-09"_s << English << u"2023-02-09 - Photo"_s;
    QTest::newRow("unset clock taken for a date")
        << u"- Date taken: 0000-00-00\n- Camera: SONY ILCE-7M3"_s << Spanish << u"Foto - SONY ILCE-7M3"_s;
    QTest::newRow("unset clock alone named") << u"- Date taken: 0000-00-00"_s << English << QString();
}

void BuiltInNamerTest::namesPicture()
{
    QFETCH(QString, facts);
    QFETCH(FilenameLanguage, language);
    QFETCH(QString, name);
    const auto suggestion = nameFromContent(requestForPicture(facts, language));
    QCOMPARE(suggestion ? suggestion->name : QString(), name);
}

void BuiltInNamerTest::readsDate_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("date");
    const QString american = u"Invoice Acme Tools Inc. Invoice date: %1 Total $10.00"_s;
    const QString dutch = u"Factuur Klusbedrijf Jansen B.V. Factuurdatum: %1 Totaal incl. btw € 10,00"_s;
    const QString spanish = u"Factura Talleres Soto, S.L. Fecha: %1 Total con IVA 10,00 €"_s;
    QTest::newRow("American order read as European") << american.arg(u"03/04/2025"_s) << u"2025-03-04"_s;
    QTest::newRow("European order read as American")
        << u"Invoice Acme Tools Ltd Invoice date: 03/04/2025 Total £10.00"_s << u"2025-04-03"_s;
    QTest::newRow("month before day with ordinal") << american.arg(u"March 3rd, 2025"_s) << u"2025-03-03"_s;
    QTest::newRow("ISO with time") << american.arg(u"2025-03-03T10:15:00Z"_s) << u"2025-03-03"_s;
    QTest::newRow("two-digit year") << dutch.arg(u"14-3-25"_s) << u"2025-03-14"_s;
    QTest::newRow("abbreviated month between dashes") << dutch.arg(u"14-mrt-2025"_s) << u"2025-03-14"_s;
    QTest::newRow("dots") << dutch.arg(u"14.03.2025"_s) << u"2025-03-14"_s;
    QTest::newRow("small words between") << spanish.arg(u"14 de marzo del 2025"_s) << u"2025-03-14"_s;
    QTest::newRow("capitals") << spanish.arg(u"14 MARZO 2025"_s) << u"2025-03-14"_s;
    QTest::newRow("day that no month has") << dutch.arg(u"31-02-2025"_s) << QString();
    QTest::newRow("order number taken for a date") << dutch.arg(u"14-03-2025-0017"_s) << QString();
    QTest::newRow("due date alone taken")
        << u"Invoice Acme Tools Ltd Due date: 3 April 2025 Total £10.00"_s << QString();
}

void BuiltInNamerTest::readsDate()
{
    QFETCH(QString, text);
    QFETCH(QString, date);
    const auto suggestion = nameFromContent(requestFor(u"template=invoice"_s, text));
    QVERIFY(suggestion);
    const QString first = suggestion->name.section(u" - "_s, 0, 0);
    QCOMPARE(first.front().isDigit() ? first : QString(), date);
}

void BuiltInNamerTest::readsAmount_data()
{
    QTest::addColumn<QString>("total");
    QTest::addColumn<QString>("amount");
    QTest::newRow("dot for thousands") << u"Total € 1.234,56"_s << u"1234.56 EUR"_s;
    QTest::newRow("comma for thousands") << u"Total $1,234.56"_s << u"1234.56 USD"_s;
    QTest::newRow("space for thousands") << u"Total 1 234,56 €"_s << u"1234.56 EUR"_s;
    QTest::newRow("apostrophe for thousands") << u"Total CHF 1'234.50"_s << u"1234.50 CHF"_s;
    QTest::newRow("thousands without decimals") << u"Total € 12.500"_s << u"12500.00 EUR"_s;
    QTest::newRow("dash for no cents") << u"Totaal € 1.250,-"_s << u"1250.00 EUR"_s;
    QTest::newRow("sign overrules code") << u"Total $8,932.00 MXN"_s << u"8932.00 MXN"_s;
    QTest::newRow("code glued to figures") << u"Total 45.10GBP"_s << u"45.10 GBP"_s;
    QTest::newRow("net amount of a row") << u"Total 100.00 21.00 121.00 EUR"_s << u"121.00 EUR"_s;
    QTest::newRow("row of labels before row of values")
        << u"Subtotal VAT Total £100.00 £20.00 £120.00"_s << u"120.00 GBP"_s;
    QTest::newRow("cash given taken") << u"Total £9.55 Cash £20.00 Change £10.45"_s << u"9.55 GBP"_s;
    QTest::newRow("nothing left to pay") << u"Total $114.48 Balance due $0.00"_s << u"114.48 USD"_s;
}

void BuiltInNamerTest::readsAmount()
{
    QFETCH(QString, total);
    QFETCH(QString, amount);
    const auto suggestion = nameFromContent(
        requestFor(u"template=invoice"_s, u"INVOICE Acme Tools Ltd Invoice no. 33 Hammer 2 pieces "_s + total));
    QVERIFY(suggestion);
    QCOMPARE(suggestion->name.section(u" - "_s, -1), amount);
}

void BuiltInNamerTest::keepsDateAndAmountOfLongName_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("begins");
    QTest::addColumn<QString>("ends");
    QTest::newRow("amount cut off")
        << u"Invoice Invoice date: 3 April 2025 Seller: The Extraordinarily Long Winded Manufacturing and Trading "
           u"Corporation Incorporated Total £10.00"_s
        << u"2025-04-03 - The Extraordinarily"_s << u" - Invoice - 10.00 GBP"_s;
    QTest::newRow("title cut inside a word")
        << u"# Considerations regarding the neighbourhood redevelopment programme and its consequences everywhere"_s
        << u"Considerations regarding"_s << u" programme"_s;
}

void BuiltInNamerTest::keepsDateAndAmountOfLongName()
{
    QFETCH(QString, text);
    QFETCH(QString, begins);
    QFETCH(QString, ends);
    const auto suggestion = nameFromContent(requestFor({}, text));
    QVERIFY(suggestion);
    QVERIFY2(countCharacters(suggestion->name, 200) <= 80, qPrintable(suggestion->name));
    QVERIFY2(suggestion->name.startsWith(begins), qPrintable(suggestion->name));
    QVERIFY2(suggestion->name.endsWith(ends), qPrintable(suggestion->name));
}

void BuiltInNamerTest::findsNothing_data()
{
    QTest::addColumn<FileContent>("content");
    QTest::newRow("figures") << FileContent(TextContent { u"0 1 2 3 4 5 6 7 8 9 10 11 12 13"_s });
    QTest::newRow("punctuation") << FileContent(TextContent { u"---- **** //// \"\"\"\" ::::"_s });
    QTest::newRow("picture without metadata") << FileContent(ImageContent { {}, u"image/jpeg"_s, {} });
}

void BuiltInNamerTest::findsNothing()
{
    QFETCH(FileContent, content);
    SuggestionRequest request;
    request.content = content;
    BuiltInNamer namer;
    const auto result = QCoro::waitFor(namer.suggestName(request));
    QVERIFY(result == tl::make_unexpected(NameSuggestionError(NoReadableContent {})));
}

void BuiltInNamerTest::endsQuicklyOnHostileText_data()
{
    QTest::addColumn<QString>("text");
    const auto repeated = [](const QString &piece) { return piece.repeated(8000 / piece.size()); };
    QTest::newRow("unclosed elements") << u"<html>"_s + repeated(u"<script <nav "_s);
    QTest::newRow("opened keys") << u"{"_s + repeated(u"\"a "_s);
    QTest::newRow("encoded words never closed") << u"From: a@b Subject: "_s + repeated(u"=?utf-8?Q?"_s);
    QTest::newRow("groups of three figures") << u"Total "_s + repeated(u"111 "_s);
    QTest::newRow("half dates") << repeated(u"12-12-"_s);
    QTest::newRow("labels without values") << repeated(u"Total date from: "_s);
    QTest::newRow("legal forms") << repeated(u"Ltd B.V. "_s);
    QTest::newRow("capitals") << repeated(u"Aa "_s);
    QTest::newRow("brackets") << u"# a "_s + repeated(u"[]("_s);
    QTest::newRow("spaced letters") << repeated(u"F A C T U U R "_s);
    QTest::newRow("names that return") << u"Gemeente Van Dam en "_s + repeated(u"Gemeente "_s);
    QTest::newRow("represented without end") << u"CONTRATO entre "_s + repeated(u"Ana en nombre de y "_s);
    QTest::newRow("elements without end") << u"<?xml version=\"1.0\"?>"_s + repeated(u"<a b=\"c\">"_s);
    QTest::newRow("cues without text") << u"WEBVTT "_s + repeated(u"00:00:01.000 --> 00:00:02.000 "_s);
    QTest::newRow("surrogates and marks") << repeated(u"\U0001F469\u0301\u200D "_s);
}

void BuiltInNamerTest::endsQuicklyOnHostileText()
{
    failOnBrokenPattern();
    QFETCH(QString, text);
    QElapsedTimer timer;
    timer.start();
    const auto suggestion = nameFromContent(requestFor({}, text));
    // Backtracking without bound takes minutes; a slow machine does not.
    QVERIFY(timer.elapsed() < 5000);
    QVERIFY(!suggestion || countCharacters(suggestion->name, 200) <= 80);
}

QTEST_GUILESS_MAIN(BuiltInNamerTest)
#include "tst_BuiltInNamer.moc"
