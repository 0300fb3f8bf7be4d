// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/CommandLine.h"
#include <QTest>

using namespace Varlo;
using namespace Qt::StringLiterals;
using Words = std::vector<const char *>;
using Paths = std::vector<std::filesystem::path>;

class CommandLineTest : public QObject {
    Q_OBJECT
private slots:
    void takesFiles_data();
    void takesFiles();
    void takesTags_data();
    void takesTags();
    void takesTemplate();
    void opensWithoutWords();
    void watchesOneFolder();
    void refuses_data();
    void refuses();
    void showsHelpOfItsOwn();
};

void CommandLineTest::takesFiles_data()
{
    QTest::addColumn<Words>("words");
    QTest::addColumn<Paths>("files");
    const auto row
        = [](const char *slip, const Words &words, const Paths &files) { QTest::newRow(slip) << words << files; };
    row("subcommand's name", { "suggest", "key", "suggest", "list" }, { "key", "suggest", "list" });
    row("option behind --", { "suggest", "--", "-rf.txt", "--offline" }, { "-rf.txt", "--offline" });
    row("bytes that are not UTF-8", { "suggest", "caf\xe9.pdf" }, { "caf\xe9.pdf" });
    row("folder in brackets", { "suggest", "[2024]", "[a,b]", "x,y" }, { "[2024]", "[a,b]", "x,y" });
    row("file in braces", { "suggest", "{}" }, { "{}" });
    row("file of plus signs", { "suggest", "--", "++", "%%" }, { "++", "%%" });
    row("option between files", { "suggest", "a", "--language=nl", "b", "--template", "t", "c" }, { "a", "b", "c" });
    row("file like a value", { "suggest", "--tags", "false", "--offline", "true" }, { "false", "true" });
}

void CommandLineTest::takesFiles()
{
    QFETCH(Words, words);
    CommandLine commandLine;
    const Result<Command, UsageError> command = commandLine.parse(words);
    QVERIFY2(command, command ? "" : command.error().message.c_str());
    QTEST(std::get<SuggestCommand>(*command).arguments.files, "files");
}

void CommandLineTest::takesTags_data()
{
    QTest::addColumn<Words>("words");
    QTest::addColumn<std::optional<bool>>("tags");
    QTest::newRow("preference overruled") << Words { "suggest", "a" } << std::optional<bool>();
    QTest::newRow("first stands") << Words { "suggest", "--tags", "--no-tags", "a" } << std::optional(false);
    QTest::newRow("no stands") << Words { "suggest", "--no-tags", "--tags", "a" } << std::optional(true);
}

void CommandLineTest::takesTags()
{
    QFETCH(Words, words);
    CommandLine commandLine;
    const Result<Command, UsageError> command = commandLine.parse(words);
    QVERIFY2(command, command ? "" : command.error().message.c_str());
    QTEST(std::get<SuggestCommand>(*command).naming.tags, "tags");
}

void CommandLineTest::takesTemplate()
{
    CommandLine commandLine;
    const auto command = commandLine.parse(Words { "templates", "edit", "an id", "date", "--name", "", "parties" });
    QVERIFY2(command, command ? "" : command.error().message.c_str());
    const auto &edit = std::get<TemplatesEditCommand>(*command);
    QCOMPARE(edit.id, u"an id"_s);
    QCOMPARE(edit.name, std::optional(u""_s)); // given, though empty
    const QList expected { TemplateField::Date, TemplateField::Parties };
    QCOMPARE(edit.fields, expected);
}

void CommandLineTest::opensWithoutWords()
{
    CommandLine commandLine;
    const auto command = commandLine.parse({});
    QVERIFY(command && std::get<OpenCommand>(*command).files.empty());
}

void CommandLineTest::watchesOneFolder()
{
    CommandLine commandLine;
    const auto command = commandLine.parse(Words { "watch", "--offline", "[caf\xe9]", "--include-existing" });
    QVERIFY2(command, command ? "" : command.error().message.c_str());
    const auto &watch = std::get<WatchCommand>(*command);
    QCOMPARE(watch.folder.native(), std::string("[caf\xe9]"));
    QVERIFY(watch.includeExisting && watch.naming.offline && !watch.json);
}

void CommandLineTest::refuses_data()
{
    QTest::addColumn<Words>("words");
    QTest::addColumn<QStringList>("parts"); // of the message, in their order
    const auto row
        = [](const char *slip, const Words &words, const QStringList &parts) { QTest::newRow(slip) << words << parts; };
    row("subcommand mistyped", { "sugest", "a" },
        { u"\"sugest\""_s, u"did you mean \"suggest\"?"_s, u"`varlo --help`"_s });
    row("option mistyped", { "suggest", "--langauge", "nl", "a" },
        { u"unknown option \"--langauge\""_s, u"\"--language\"?"_s, u"`varlo suggest --help`"_s });
    row("nested one mistyped", { "templates", "ad", "date" },
        { u"\"ad\""_s, u"\"add\"?"_s, u"`varlo templates --help`"_s });
    row("language", { "suggest", "--language", "fr", "a" }, { u"--language"_s, u"fr"_s, u"auto"_s });
    row("field", { "templates", "add", "date", "colour" }, { u"colour"_s, u"vendor"_s });
    row("value left out", { "suggest", "a", "--template" }, { u"--template"_s });
    row("no file", { "suggest", "--offline" }, { u"FILE"_s, u"`varlo suggest --help`"_s });
    row("two folders to watch", { "watch", "a", "b" }, { u"\"b\""_s, u"`varlo watch --help`"_s });
    row("no folder to watch", { "watch", "--json" }, { u"FOLDER"_s });
    row("-- named", { "config", "get", "a", "--", "b" }, { u"\"b\""_s });
    row("word too many", { "config", "get", "a", "b" }, { u"\"b\""_s, u"`varlo config get --help`"_s });
}

void CommandLineTest::refuses()
{
    QFETCH(Words, words);
    QFETCH(QStringList, parts);
    CommandLine commandLine;
    const Result<Command, UsageError> command = commandLine.parse(words);
    QVERIFY(!command);
    const QString message = QString::fromStdString(command.error().message);
    qsizetype from = 0;
    for (const QString &part : parts) {
        from = message.indexOf(part, from);
        QVERIFY2(from >= 0, qPrintable(part + u" is not in its place in: "_s + message));
    }
}

void CommandLineTest::showsHelpOfItsOwn()
{
    CommandLine commandLine;
    const auto command = commandLine.parse(Words { "templates", "add", "--help" });
    QVERIFY(command);
    const QString help = QString::fromStdString(std::get<ShowTextCommand>(*command).text);
    QVERIFY2(help.contains(u"print its id"_s), qPrintable(help));
    QVERIFY2(!help.contains(u"Without a subcommand"_s), qPrintable(help)); // the footer of another one
}

QTEST_GUILESS_MAIN(CommandLineTest)
#include "tst_CommandLine.moc"
