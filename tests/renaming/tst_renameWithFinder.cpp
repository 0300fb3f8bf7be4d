// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "fakes/FakeAutomationHost.h"
#include "renaming/AppleScriptInterpreter.h"
#include "renaming/buildFinderRenameScript.h"
#include "renaming/FinderPermission.h"
#include "renaming/renameWithFinder.h"

#include <filesystem>
#include <fstream>
#include <functional>
#include <QFile>
#include <QRegularExpression>
#include <QSemaphore>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

using namespace Qt::StringLiterals;
using namespace Varlo;
using Path = std::filesystem::path;
using Outcome = Result<Path, FinderRenameError>;
using ScriptError = AutomationHost::ScriptError;
using Answer = Result<std::optional<QString>, ScriptError>;

namespace {

/// Does what a script says, on real files. `alter` may put a slip into the script first.
struct InterpretingHost final : FakeAutomationHost {
    struct Tokens final : Script {
        QList<AppleScriptInterpreter::Token> tokens;
    };
    std::function<QString(const QString &)> alter = [](const QString &source) { return source; };

    std::unique_ptr<Script> compile(const QString &source) override
    {
        const auto tokens = AppleScriptInterpreter::compile(alter(source));
        if (!tokens)
            return nullptr;
        auto script = std::make_unique<Tokens>();
        script->tokens = *tokens;
        return script;
    }
    Answer execute(Script &script) override
    {
        return AppleScriptInterpreter::execute(static_cast<Tokens &>(script).tokens);
    }
};

struct Scenario {
    const char *name;
    QString fileName, newName;
    QString renamed; ///< the file's name afterwards; "" when the script fails with its own message
    QStringList taken; ///< by other files in the folder
    QString folder = u"inbox"_s;
};

QStringList reports(int last)
{
    QStringList names { u"Report.pdf"_s };
    for (int number = 2; number <= last; ++number)
        names.append(u"Report %1.pdf"_s.arg(number));
    return names;
}

const QList<Scenario> &scenarios()
{
    static const QList<Scenario> all {
        { "free", u"scan.pdf"_s, u"\"Re:port\""_s, u"Report.pdf"_s, {} },
        { "taken", u"scan.pdf"_s, u"Report"_s, u"Report 3.pdf"_s, reports(2) },
        { "its own name but for the case of letters", u"report.pdf"_s, u"Report"_s, u"report.pdf"_s, {} },
        { "its own number", u"Report 2.pdf"_s, u"Report"_s, u"Report 2.pdf"_s, reports(1) },
        { "no extension", u"README"_s, u"Notes"_s, u"Notes 2"_s, { u"Notes"_s } },
        { "quotes and backslashes", u"s\"c\\an.p\"d\\f"_s, u"Report"_s, u"Report.p\"d\\f"_s, {},
            u"the \"new\" \\n\\"_s },
        { "line break in the folder, mark before the extension", u"scan.\uFEFFpdf"_s, u"Report"_s,
            u"Report.\uFEFFpdf"_s, {}, u"a\nb"_s },
        { "100 is free", u"scan.pdf"_s, u"Report"_s, u"Report 100.pdf"_s, reports(99) },
        { "100 is taken too", u"scan.pdf"_s, u"Report"_s, u""_s, reports(100) },
    };
    return all;
}

Path below(const Path &folder, const QString &name) { return folder / name.toStdString(); }

QStringList listing(const Path &folder)
{
    QStringList names;
    for (const auto &entry : std::filesystem::directory_iterator(folder))
        names.append(QString::fromStdString(entry.path().filename().native()));
    names.sort();
    return names;
}

/// What goes otherwise than the scenario says; "" when nothing does.
QString deviation(AutomationHost &host, const Scenario &scenario)
{
    const QTemporaryDir temporary;
    const Path folder = below(temporary.path().toStdString(), scenario.folder);
    std::filesystem::create_directory(folder);
    for (const QString &name : scenario.taken)
        std::ofstream(below(folder, name)) << "another";
    const Path path = below(folder, scenario.fileName);
    std::ofstream(path) << "the file";

    const Outcome outcome = renameWithFinder(host, path, scenario.newName);
    const bool isRenamed = !scenario.renamed.isEmpty();
    const Path expected = below(folder, isRenamed ? scenario.renamed : scenario.fileName);
    if (isRenamed && outcome != expected)
        return outcome ? u"renamed to "_s + QString::fromStdString(outcome->native())
                       : description(outcome.error()).text();
    if (!isRenamed
        && outcome != tl::make_unexpected(FinderRenameError(FinderFailed { u"Too many files with this name."_s })))
        return u"not the script's own error"_s;
    std::string content;
    std::getline(std::ifstream(expected), content, '\0');
    if (content != "the file")
        return u"another file is there"_s;
    QStringList names = scenario.taken + QStringList { QString::fromStdString(expected.filename().native()) };
    names.sort();
    return listing(folder) == names ? QString() : u"other files changed"_s;
}

/// The script in words, literals, signs and line feeds; joined by spaces it means the same.
QStringList pieces(const QString &source)
{
    static const QRegularExpression piece(uR"("(?:\\.|[^"\\])*"|\w+|[^\s\w"]|\n)"_s,
        QRegularExpression::UseUnicodePropertiesOption | QRegularExpression::DotMatchesEverythingOption);
    QStringList pieces;
    for (auto matches = piece.globalMatch(source); matches.hasNext();)
        pieces.append(matches.next().captured());
    return pieces;
}

/// One slip: `count` pieces from `at` become `instead`.
struct Slip {
    qsizetype at, count;
    QStringList instead;

    [[nodiscard]] QString in(const QString &source) const
    {
        const QStringList all = pieces(source);
        return (all.first(at) + instead + all.sliced(at + count)).join(u' ');
    }
};

/// Each line left out, each word left out, and each word taken for any other of the script's or a number beside its
/// own.
QList<Slip> slips(const QStringList &script)
{
    QStringList words = script + QStringList { u"2"_s, u"98"_s, u"100"_s };
    words.removeDuplicates();
    words.removeOne(u"\n"_s);
    QList<Slip> slips;
    qsizetype lineStart = 0;
    for (qsizetype at = 0; at <= script.size(); ++at) {
        if (at == script.size() || script[at] == "\n"_L1) {
            slips.append({ lineStart, at - lineStart, {} });
            lineStart = at + 1;
            continue;
        }
        slips.append({ at, 1, {} });
        for (const QString &word : words) {
            if (word != script[at])
                slips.append({ at, 1, { word } });
        }
    }
    return slips;
}

bool isNoticed(const Slip &slip)
{
    InterpretingHost host;
    host.alter = [&](const QString &source) { return slip.in(source); };
    const auto &all = scenarios();
    return std::any_of(all.begin(), all.end(), [&](const Scenario &each) { return !deviation(host, each).isEmpty(); });
}

const FinderFailed withoutReason { u"Finder could not rename the file."_s };

} // namespace

class RenameWithFinderTest : public QObject {
    Q_OBJECT
private slots:
    void writesTheScript();
    void renames_data();
    void renames();
    void noticesEverySlipInTheScript();
    void readsTheAnswer_data();
    void readsTheAnswer();
    void executesNothing_data();
    void executesNothing();
    void readsThePermission_data();
    void readsThePermission();
    void asksWithoutBlockingTheCaller();
};

void RenameWithFinderTest::writesTheScript()
{
    QFile sample(QStringLiteral(VARLO_SOURCE_DIR "/tests/renaming/rename.applescript"));
    QVERIFY(sample.open(QIODevice::ReadOnly));
    const QString script
        = buildFinderRenameScript(u"/home/ana/the \"new\" \\files\\/scan.p\"d\\f"_s, u"say \"hi\" \\n"_s, u"p\"d\\f"_s);
    QCOMPARE(script + u'\n', QString::fromUtf8(sample.readAll()));
}

void RenameWithFinderTest::renames_data()
{
    QTest::addColumn<Scenario>("scenario");
    for (const Scenario &scenario : scenarios())
        QTest::newRow(scenario.name) << scenario;
}

void RenameWithFinderTest::renames()
{
    QFETCH(Scenario, scenario);
    InterpretingHost host;
    QCOMPARE(deviation(host, scenario), QString());
}

void RenameWithFinderTest::noticesEverySlipInTheScript()
{
    const QStringList script = pieces(buildFinderRenameScript(u"/inbox/scan.pdf"_s, u"Report"_s, u"pdf"_s));
    QCOMPARE(script.count(u"\n"_s), qsizetype(26));
    const Slip none { 0, 0, {} };
    QVERIFY(!isNoticed(none)); // taking the script apart and together again is no slip
    QStringList unnoticed;
    for (const Slip &slip : slips(script)) {
        if (!isNoticed(slip)) {
            const QString line = QString::number(script.first(slip.at).count(u"\n"_s) + 1);
            const QStringList original = script.sliced(slip.at, slip.count);
            unnoticed.append(line + u": "_s + original.join(u' ') + u" -> "_s + slip.instead.join(u' '));
        }
    }
    QCOMPARE(unnoticed, QStringList());
}

void RenameWithFinderTest::readsTheAnswer_data()
{
    QTest::addColumn<Answer>("answer");
    QTest::addColumn<QByteArray>("path");
    QTest::addColumn<Outcome>("outcome");
    const auto failure = [](const char *name, const ScriptError &error, const FinderRenameError &expected) {
        QTest::newRow(name) << Answer(tl::unexpect, error) << "/inbox/scan.pdf"_ba << Outcome(tl::unexpect, expected);
    };
    failure("not permitted, with a message", { -1743, u"Not allowed."_s }, AutomationDenied {});
    failure("user not asked yet, with a message", { -1744, u"Ask first."_s }, AutomationDenied {});
    failure("not permitted, without a message", { -1743, {} }, AutomationDenied {});
    failure("no number", { {}, u"Disk full."_s }, FinderFailed { u"Disk full."_s });
    failure("no message", { -43, {} }, withoutReason);
    const auto success = [](const char *name, const std::optional<QString> &result, const QByteArray &path, Path now) {
        QTest::newRow(name) << Answer(result) << path << Outcome(std::move(now));
    };
    success("a path", u"/inbox/Réport 2.pdf"_s, "/inbox/scan.pdf"_ba, "/inbox/Réport 2.pdf");
    success("no text", {}, "/inbox/scan.pdf"_ba, "/inbox/Report.pdf");
    success("empty text", u""_s, "/inbox/scan.pdf"_ba, "/inbox/Report.pdf");
    success("no text and no extension", {}, "/inbox/README"_ba, "/inbox/Report");
}

void RenameWithFinderTest::readsTheAnswer()
{
    QFETCH(Answer, answer);
    QFETCH(QByteArray, path);
    QFETCH(Outcome, outcome);
    FakeAutomationHost host;
    host.answer = answer;
    QVERIFY(renameWithFinder(host, path.toStdString(), u" Report "_s) == outcome);
    QCOMPARE(host.executed.size(), qsizetype(1));
}

void RenameWithFinderTest::executesNothing_data()
{
    QTest::addColumn<QByteArray>("path");
    QTest::addColumn<QString>("newName");
    QTest::addColumn<bool>("compiles");
    QTest::addColumn<FinderRenameError>("error");
    QTest::newRow("nothing left of the name")
        << "/a.pdf"_ba << u" \"/\" "_s << true << FinderRenameError(RenameError::InvalidName);
    QTest::newRow("script that does not compile") << "/a.pdf"_ba << u"b"_s << false << FinderRenameError(withoutReason);
    QTest::newRow("path that is not UTF-8")
        << "/\xE9t\xE9.pdf"_ba << u"b"_s << true << FinderRenameError(withoutReason);
    QTest::newRow("character cut off at the end")
        << "/a.pd\xC3"_ba << u"b"_s << true << FinderRenameError(withoutReason);
}

void RenameWithFinderTest::executesNothing()
{
    QFETCH(QByteArray, path);
    QFETCH(QString, newName);
    QFETCH(bool, compiles);
    QFETCH(FinderRenameError, error);
    FakeAutomationHost host;
    host.compiles = compiles;
    QVERIFY(renameWithFinder(host, path.toStdString(), newName) == tl::make_unexpected(error));
    QCOMPARE(host.executed, QStringList());
}

void RenameWithFinderTest::readsThePermission_data()
{
    QTest::addColumn<bool>("hasTarget");
    QTest::addColumn<int>("status");
    QTest::addColumn<FinderPermission>("permission");
    QTest::newRow("granted") << true << 0 << FinderPermission::Granted;
    QTest::newRow("not asked yet") << true << -1744 << FinderPermission::NotDetermined;
    QTest::newRow("refused") << true << -1743 << FinderPermission::Denied;
    QTest::newRow("Finder is not running") << true << -600 << FinderPermission::Denied;
    QTest::newRow("no target, so its status does not count") << false << 0 << FinderPermission::Denied;
}

void RenameWithFinderTest::readsThePermission()
{
    QFETCH(bool, hasTarget);
    QFETCH(int, status);
    QFETCH(FinderPermission, permission);
    FakeAutomationHost host;
    host.hasTarget = hasTarget;
    host.status = status;
    QCOMPARE(finderPermission(&host, false), permission);
    const FakeAutomationHost::Question question { "com.apple.finder"_ba, 0x2A2A2A2A, 0x2A2A2A2A, false };
    QCOMPARE(host.question.has_value(), hasTarget);
    QVERIFY(host.question.value_or(question) == question);
    QCOMPARE(finderPermission(nullptr, false), FinderPermission::Denied);
}

void RenameWithFinderTest::asksWithoutBlockingTheCaller()
{
    struct AskingHost final : FakeAutomationHost {
        QSemaphore userAnswers;
        int permissionStatus(const QByteArray &, quint32, quint32, bool askUser) override
        {
            // The user's answer comes through the event loop that the call must leave free.
            return askUser && userAnswers.tryAcquire(1, 30000) ? noError : eventNotPermitted;
        }
    } host;
    QTimer::singleShot(0, this, [&] { host.userAnswers.release(); });
    QCOMPARE(QCoro::waitFor(requestFinderPermission(&host)), FinderPermission::Granted);
    QCOMPARE(QCoro::waitFor(requestFinderPermission(nullptr)), FinderPermission::Denied);
}

QTEST_GUILESS_MAIN(RenameWithFinderTest)
#include "tst_renameWithFinder.moc"
