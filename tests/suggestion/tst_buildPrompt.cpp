// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "suggestion/buildPrompt.h"
#include <QFile>
#include <QTest>

using namespace Varlo;
using namespace Qt::StringLiterals;

struct PromptInput {
    QString existingName = {};
    FilenameLanguage language = FilenameLanguage::Auto;
    std::optional<QString> contentText = {};
    std::optional<NameTemplate> nameTemplate = {};
    std::optional<QString> metadata = {};
    bool includeTags = false;
};

class BuildPromptTest : public QObject {
    Q_OBJECT
private slots:
    void isExact_data();
    void isExact();
    void insertsValuesAsTheyAre();
};

/// Each row is named for its file in prompts/, the prompt as the model must get it.
void BuildPromptTest::isExact_data()
{
    using enum TemplateField;
    const QString family = u"👨‍👩‍👧‍👦"_s; // one character of eleven UTF-16 units
    QTest::addColumn<PromptInput>("input");
    QTest::newRow("auto-text") << PromptInput { .existingName = u"scan 1"_s, .contentText = u"Hello"_s };
    QTest::newRow("dutch-invoice-tags") << PromptInput { .existingName = u"scan \"1\""_s,
        .language = FilenameLanguage::Dutch,
        .contentText = u"Factuur 12\nTotaal 174,24 EUR"_s,
        .nameTemplate = builtInTemplates().at(0),
        .includeTags = true };
    QTest::newRow("spanish-contract-photo") << PromptInput { .existingName = u"x"_s.repeated(81),
        .language = FilenameLanguage::Spanish,
        .nameTemplate = builtInTemplates().at(3),
        .metadata = u"Photo metadata:\n- Captured: 2024-05-01"_s };
    QTest::newRow("english-80-characters-tags") << PromptInput {
        .existingName = family.repeated(80), .language = FilenameLanguage::English, .includeTags = true
    };
    QTest::newRow("auto-81-characters") << PromptInput { .existingName = family.repeated(81), .metadata = u""_s };
    QTest::newRow("auto-custom-template") << PromptInput { .existingName = u"a"_s,
        .contentText = u"x"_s,
        .nameTemplate = NameTemplate { u"no-longer-built-in"_s, {}, { Title, Date, Title } } };
    QTest::newRow("dutch-named-template") << PromptInput { .existingName = u"a"_s,
        .language = FilenameLanguage::Dutch,
        .contentText = u"x"_s,
        .nameTemplate = NameTemplate { u"6f1f5d3c"_s, u"Bonnetjes"_s, { Title } } };
    QTest::newRow("unnamed-template-without-fields") << PromptInput { .language = FilenameLanguage::English,
        .contentText = u""_s,
        .nameTemplate = NameTemplate { u"invoice"_s, u""_s, {} } };
    QTest::newRow("receipt-photo-tags") << PromptInput { .existingName = u"IMG_1"_s,
        .nameTemplate = builtInTemplates().at(1),
        .metadata = u"Camera: X"_s,
        .includeTags = true };
}

void BuildPromptTest::isExact()
{
    QFETCH(PromptInput, input);
    QFile expected(QStringLiteral(VARLO_SOURCE_DIR "/tests/suggestion/prompts/%1.txt")
                       .arg(QString::fromUtf8(QTest::currentDataTag())));
    QVERIFY2(expected.open(QIODevice::ReadOnly), qPrintable(expected.errorString()));
    const QString prompt = buildPrompt(
        input.existingName, input.language, input.contentText, input.nameTemplate, input.metadata, input.includeTags);
    // Line by line first: of two texts this long, QCOMPARE shows only the start.
    const QList<QByteArray> expectedLines = expected.readAll().split('\n');
    const QList<QByteArray> lines = prompt.toUtf8().split('\n');
    for (qsizetype line = 0; line < std::min(lines.size(), expectedLines.size()); ++line)
        QCOMPARE(lines.at(line), expectedLines.at(line));
    QCOMPARE(lines.size(), expectedLines.size());
}

void BuildPromptTest::insertsValuesAsTheyAre()
{
    const NameTemplate trap { u"1"_s, u"%1 %2 %3"_s, { TemplateField::Vendor } };
    const QString prompt = buildPrompt(u"50%2 off"_s, FilenameLanguage::Dutch, u"%1 %4"_s, trap, {}, false);
    QVERIFY(prompt.contains("the user chose the \"%1 %2 %3\" template"_L1));
    QVERIFY(prompt.contains("the existing name \"50%2 off\" verbatim"_L1));
    QVERIFY(prompt.endsWith("File contents:\n%1 %4"_L1));
}

QTEST_GUILESS_MAIN(BuildPromptTest)
#include "tst_buildPrompt.moc"
