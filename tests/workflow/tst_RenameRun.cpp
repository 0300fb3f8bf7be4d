// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "fakes/FakeAutomationHost.h"
#include "workflow/TestBatch.h"
#include <QSignalSpy>
#include <QTest>
#include <QTimer>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

using namespace Varlo;
using namespace Qt::StringLiterals;
using Path = std::filesystem::path;

/// Runs as somebody to whom a folder can be refused.
class RenameRunTest : public QObject {
    Q_OBJECT
private slots:
    void initTestCase();
    void renamesExactlyTheEligible();
    void landsEachOutcomeOnItsFile();
    void writesTheTagsOfTheSuggestion();
    void asksOnceAnActionForARefusedFolder();
    void goesOnAfterAccessIsGranted();
    void prefersFinderWhereItMay();
    void fallsBackWhenFinderIsDenied();
    void keepsUpWithEditsAndClearing();
    void stopsAfterTheRenameInHand();
    void servesActionsInTurn();
    void returnsARevertedFileToPending();

private:
    static QString tagsOf(const Path &path)
    {
        char value[256] {};
        const ssize_t size = ::getxattr(path.c_str(), "user.xdg.tags", value, sizeof value);
        return size < 0 ? QString() : QString::fromUtf8(value, size);
    }
    static void renameAll(const TestBatch &test) { QCoro::waitFor(test.batch->renameAll()); }
};

void RenameRunTest::initTestCase()
{
    QVERIFY2(::geteuid() != 0, "run by the administrator, to whom nothing is refused");
}

void RenameRunTest::renamesExactlyTheEligible()
{
    TestBatch test;
    test.log.record("/elsewhere/x.txt", "/elsewhere/known.txt");
    test.reader.extractions.insert_or_assign(test.make("blank.txt"), NoTextFound {});
    test.reader.extractions.insert_or_assign(test.make("odd.txt"), NotSupportedYet {});
    test.reader.extractions.insert_or_assign(test.make("typed.txt"), NoTextFound {});
    test.suggester.errors.insert_or_assign(u"failed"_s, InvalidResponse {});
    test.add({ test.folder / "blank.txt", test.make("failed.txt"), test.make("good.txt"), test.make("known.txt"),
        test.folder / "odd.txt", test.folder / "typed.txt" });
    test.suggest();
    test.batch->setSuggestedName(1, u"B"_s);
    test.batch->setSuggestedName(3, u"C"_s);
    test.batch->setSuggestedName(4, u"not this one"_s);
    test.batch->setSuggestedName(5, u"D"_s);
    test.add({ test.make("waits.txt") });
    test.batch->setSuggestedName(6, u"nor this one"_s);

    renameAll(test);
    QCOMPARE(test.names(),
        (QStringList {
            u"blank.txt"_s, u"B.txt"_s, u"new good.txt"_s, u"C.txt"_s, u"odd.txt"_s, u"D.txt"_s, u"waits.txt"_s }));
    QCOMPARE(test.statuses().count(u"renamed"_s), 4);
    QCOMPARE(test.log.entries().size(), 5U);
    QCOMPARE(test.log.entries()[1].fromPath, test.folder / "failed.txt"); // in the batch's order
    QCOMPARE(test.log.entries()[4].toPath, test.folder / "D.txt");
    const FileItem &item = test.batch->files()[2];
    QCOMPARE(item.previousName, u"good.txt"_s);
    QCOMPARE(item.suggestedName, u"new good"_s);

    renameAll(test); // a renamed file is not renamed again, nor is its name changed any more
    test.batch->setSuggestedName(2, u"other"_s);
    QCoro::waitFor(test.batch->rename(item.id));
    QCOMPARE(test.log.entries().size(), 5U);
    QCOMPARE(test.batch->files()[2].suggestedName, u"new good"_s);
}

void RenameRunTest::landsEachOutcomeOnItsFile()
{
    TestBatch test;
    test.addNamed("illegal.txt", u"///"_s);
    test.addNamed("gone.txt", u"A"_s);
    test.addNamed("swapped.txt", u"B"_s);
    test.addNamed("same.txt", u"same"_s);
    test.addNamed("taken.txt", u"good"_s);
    test.addNamed("good.txt", u"better"_s);
    std::filesystem::remove(test.folder / "gone.txt");
    std::filesystem::rename(test.make("other.txt", "another file"), test.folder / "swapped.txt");
    renameAll(test);

    const QStringList statuses = test.statuses();
    QCOMPARE(statuses[0], u"failed: Not a valid file name."_s);
    QVERIFY(statuses[1].startsWith(u"failed: "_s));
    QVERIFY(statuses[2].startsWith(u"failed: "_s)); // what is there now is not what was admitted
    QCOMPARE(statuses.mid(3), (QStringList { u"renamed"_s, u"renamed"_s, u"renamed"_s }));
    QCOMPARE(test.names().mid(2), (QStringList { u"swapped.txt"_s, u"same.txt"_s, u"good 2.txt"_s, u"better.txt"_s }));
    QCOMPARE(test.log.entries().size(), 3U); // a rename to the same name is one too
    QVERIFY(!test.batch->files()[0].previousName);

    test.batch->setSuggestedName(0, u"legal"_s); // a failure can be tried again
    QCoro::waitFor(test.batch->rename(test.batch->files()[0].id));
    QCOMPARE(test.names().first(), u"legal.txt"_s);
}

void RenameRunTest::writesTheTagsOfTheSuggestion()
{
    TestBatch test;
    QVERIFY(test.preferences.set(Preference::writeFinderTags, true));
    test.add({ test.make("tagged.txt") });
    test.suggest();
    QVERIFY(test.preferences.set(Preference::writeFinderTags, false));
    test.add({ test.make("untagged.txt") });
    test.suggest();
    if (::setxattr((test.folder / "untagged.txt").c_str(), "user.probe", "1", 1, 0) != 0)
        QSKIP("the temporary folder's file system has no attributes");
    renameAll(test);
    QCOMPARE(tagsOf(test.folder / "new tagged.txt"), u"tag"_s);
    QCOMPARE(tagsOf(test.folder / "new untagged.txt"), QString());
}

void RenameRunTest::asksOnceAnActionForARefusedFolder()
{
    TestBatch test;
    for (const char *file : { "shut/a.txt", "shut/b.txt", "open/c.txt", "shut/d.txt" })
        test.addNamed(file, u"X"_s);
    ::chmod((test.folder / "shut").c_str(), 0555);
    renameAll(test);
    const QString refused = u"failed: No permission to rename in this folder."_s;
    QCOMPARE(test.statuses(), (QStringList { refused, refused, u"renamed"_s, refused }));
    QCOMPARE(test.panel.asked, std::vector<Path> { test.folder / "shut" });

    QCoro::waitFor(test.batch->rename(test.batch->files()[1].id)); // another action asks again
    QCOMPARE(test.panel.asked.size(), 2U);
    QCOMPARE(test.log.entries().size(), 1U);
    ::chmod((test.folder / "shut").c_str(), 0755);
}

void RenameRunTest::goesOnAfterAccessIsGranted()
{
    TestBatch test;
    for (const char *file : { "shut/a.txt", "shut/b.txt" })
        test.addNamed(file, u"X"_s);
    ::chmod((test.folder / "shut").c_str(), 0555);
    test.panel.answer = [](const Path &folder) {
        ::chmod(folder.c_str(), 0755);
        return std::optional(folder);
    };
    renameAll(test);
    QCOMPARE(test.names(), (QStringList { u"shut/X.txt"_s, u"shut/X 2.txt"_s }));
    QCOMPARE(test.panel.asked.size(), 1U);
}

void RenameRunTest::prefersFinderWhereItMay()
{
    FakeAutomationHost host;
    TestBatch test(&host);
    test.addNamed("a.txt", u"A"_s);
    test.addNamed("b.txt", u"B"_s);
    host.answer = u"/elsewhere/by Finder.txt"_s;
    QCoro::waitFor(test.batch->rename(test.batch->files()[0].id));
    QCOMPARE(Path(test.batch->files()[0].path), Path("/elsewhere/by Finder.txt"));
    QCOMPARE(test.log.entries().back().toPath, Path("/elsewhere/by Finder.txt"));
    host.answer = tl::unexpected(AutomationHost::ScriptError { -43, u"The disk is full."_s });
    renameAll(test);
    QCOMPARE(test.statuses().last(), u"failed: The disk is full."_s); // and no other way is tried
    QVERIFY(std::filesystem::exists(test.folder / "b.txt"));
    QCOMPARE(host.executed.size(), 2);
}

void RenameRunTest::fallsBackWhenFinderIsDenied()
{
    FakeAutomationHost host;
    TestBatch test(&host);
    test.addNamed("a.txt", u"A"_s);
    host.answer = tl::unexpected(AutomationHost::ScriptError { AutomationHost::eventNotPermitted, {} });
    renameAll(test);
    test.addNamed("b.txt", u"B"_s);
    host.status = AutomationHost::consentNeeded;
    renameAll(test);
    QCOMPARE(test.names(), (QStringList { u"A.txt"_s, u"B.txt"_s }));
    QCOMPARE(host.executed.size(), 1); // without consent Finder is not even asked
}

void RenameRunTest::keepsUpWithEditsAndClearing()
{
    TestBatch test;
    for (int i = 0; i < 200; ++i)
        test.make("f/" + std::to_string(1000 + i) + ".txt");
    test.add({ test.folder / "f" });
    test.suggest();
    int ticks = 0;
    QTimer timer;
    connect(&timer, &QTimer::timeout, [&] { ++ticks; });
    timer.start(0);
    QObject::connect(test.batch.get(), &RenamerViewModel::renameFinished, [&](int row) {
        if (row == 0)
            test.batch->setSuggestedName(199, {}); // loses its name before its turn comes
        if (row == 150)
            test.batch->clear(); // within a group of renames
    });
    renameAll(test);
    QVERIFY(ticks > 0);
    QVERIFY(test.batch->files().empty());
    QVERIFY(std::filesystem::exists(test.folder / "f" / "1199.txt"));
    // What was renamed is in the history, the last one before the clearing too.
    for (const RenameLog::Entry &entry : test.log.entries())
        QVERIFY(std::filesystem::exists(entry.toPath));
    std::size_t renamed = 0;
    for (const auto &entry : std::filesystem::directory_iterator(test.folder / "f"))
        renamed += entry.path().filename().native().starts_with("new ") ? 1 : 0;
    QCOMPARE(test.log.entries().size(), renamed);
    QVERIFY(renamed >= 151 && renamed < 200);
}

void RenameRunTest::stopsAfterTheRenameInHand()
{
    TestBatch test;
    for (int i = 0; i < 10; ++i)
        test.addNamed(std::to_string(i) + ".txt", u"new %1"_s.arg(i));
    connect(test.batch.get(), &RenamerViewModel::renameFinished, [&](int row) {
        if (row == 3)
            test.batch->stopRenaming();
    });
    renameAll(test);
    QCOMPARE(test.statuses().count(u"renamed"_s), 4);
    QCOMPARE(test.log.entries().size(), 4U);
    QVERIFY(!test.batch->isRenaming());
    renameAll(test);
    QCOMPARE(test.statuses().count(u"renamed"_s), 10);
}

void RenameRunTest::servesActionsInTurn()
{
    TestBatch test;
    test.addNamed("a.txt", u"A"_s);
    test.addNamed("b.txt", u"B"_s);
    auto first = test.batch->renameAll();
    auto second = test.batch->renameAll();
    auto third = test.batch->rename(test.batch->files()[1].id);
    QCoro::waitFor(third);
    QVERIFY(first.isReady() && second.isReady());
    QCOMPARE(test.names(), (QStringList { u"A.txt"_s, u"B.txt"_s }));
    QCOMPARE(test.log.entries().size(), 2U);

    test.addNamed("c.txt", u"C"_s);
    auto last = test.batch->renameAll();
    test.batch.reset(); // the window closes meanwhile
    QTRY_VERIFY_WITH_TIMEOUT(last.isReady(), 60'000);
}

void RenameRunTest::returnsARevertedFileToPending()
{
    TestBatch test;
    test.addNamed("a.txt", u"A"_s);
    renameAll(test);
    test.make("a.txt"); // somebody took the old name meanwhile
    QVERIFY(QCoro::waitFor(test.log.revertLatest()));
    const FileItem &item = test.batch->files().front();
    QCOMPARE(Path(item.path), test.folder / "a 2.txt");
    QCOMPARE(test.statuses(), QStringList { u"pending"_s });
    QCOMPARE(item.suggestedName, QString());
    QVERIFY(!item.previousName);
    test.add({ test.folder / "a 2.txt" }); // it is still known to be in the batch
    QCOMPARE(test.batch->rowCount(), 1);
}

QTEST_GUILESS_MAIN(RenameRunTest)
#include "tst_RenameRun.moc"
