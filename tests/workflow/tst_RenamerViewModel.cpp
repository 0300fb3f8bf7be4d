// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "workflow/TestBatch.h"
#include <QSignalSpy>
#include <QTest>
#include <sys/stat.h>

using namespace Varlo;
using namespace Qt::StringLiterals;
using Path = std::filesystem::path;

class RenamerViewModelTest : public QObject {
    Q_OBJECT
private slots:
    void admits_data();
    void admits();
    void passesOverDuplicatesAndSaysSo();
    void leavesFeedbackAloneForTheWatcher();
    void recognisesFilesRenamedEarlier();
    void takesNamesMadeElsewhere_data();
    void takesNamesMadeElsewhere();
    void servesAdmissionsInTurnUntilCleared();
    void keepsFiveInFlightAndTakesLateFiles();
    void landsEveryOutcomeOnItsFile();
    void asksWithTheSettingsOfThePass();
    void dropsResultsOfClearedFiles();
    void resetsOnlySuggestedFilesOnAChoice();
    void asksAgainForWantOfKeyAlone();
    void mayBeDestroyedDuringEverything();
    void keepsItsCounts();
    void showsNothingThatActs();
};

void RenamerViewModelTest::admits_data()
{
    QTest::addColumn<QStringList>("onDisk");
    QTest::addColumn<QStringList>("given"); // relative to the folder
    QTest::addColumn<QStringList>("admitted");
    QTest::newRow("one file") << QStringList { u"a.txt"_s } << QStringList { u"a.txt"_s } << QStringList { u"a.txt"_s };
    QTest::newRow("extension in capitals")
        << QStringList { u"REPORT.PDF"_s } << QStringList { u"REPORT.PDF"_s } << QStringList { u"REPORT.PDF"_s };
    QTest::newRow("types that are not read") << QStringList { u"a.mp4"_s, u"b"_s, u"c.txt~"_s }
                                             << QStringList { u"a.mp4"_s, u"b"_s, u"c.txt~"_s } << QStringList {};
    QTest::newRow("a path that is not there") << QStringList {} << QStringList { u"gone.txt"_s } << QStringList {};
    QTest::newRow("a folder: below hidden ones and packages nothing is seen, in subfolders everything")
        << QStringList { u"f/.hidden.txt"_s, u"f/.git/a.txt"_s, u"f/Some.app/b.txt"_s, u"f/Book.RTFD/c.txt"_s,
               u"f/sub/deep/d.txt"_s, u"f/e.mp4"_s }
        << QStringList { u"f"_s } << QStringList { u"f/sub/deep/d.txt"_s };
    QTest::newRow("order: as given, and in a folder by name")
        << QStringList { u"z.txt"_s, u"f/b.txt"_s, u"f/a/x.txt"_s, u"f/c.txt"_s, u"a.txt"_s }
        << QStringList { u"z.txt"_s, u"f"_s, u"a.txt"_s }
        << QStringList { u"z.txt"_s, u"f/a/x.txt"_s, u"f/b.txt"_s, u"f/c.txt"_s, u"a.txt"_s };
    QTest::newRow("slashes and dots in a path")
        << QStringList { u"f/a.txt"_s } << QStringList { u"./f//../f/"_s } << QStringList { u"f/a.txt"_s };
    QTest::newRow("a folder called x.txt is walked")
        << QStringList { u"x.txt/a.txt"_s } << QStringList { u"x.txt"_s } << QStringList { u"x.txt/a.txt"_s };
}

void RenamerViewModelTest::admits()
{
    QFETCH(QStringList, onDisk);
    QFETCH(QStringList, given);
    const TestBatch test;
    for (const QString &file : onDisk)
        test.make(file.toStdString());
    std::vector<Path> paths;
    for (const QString &path : given)
        paths.push_back(test.folder / path.toStdString());
    test.add(paths);
    QTEST(test.names(), "admitted");
    QCOMPARE(test.batch->dropFeedback().has_value(), test.batch->files().empty());
}

void RenamerViewModelTest::passesOverDuplicatesAndSaysSo()
{
    const TestBatch test;
    const Path file = test.make("a.txt", "four");
    test.add({ file, file });
    QCOMPARE(test.names(), QStringList { u"a.txt"_s });
    QCOMPARE(test.batch->files().front().byteSize, 4);
    QVERIFY(!test.batch->dropFeedback());
    test.add({ test.folder });
    QCOMPARE(test.names(), QStringList { u"a.txt"_s });
    QCOMPARE(test.batch->dropFeedback(), RenamerViewModel::DropFeedback::NothingRenameable);
    test.add({ test.make("b.txt") });
    QVERIFY(!test.batch->dropFeedback());
}

void RenamerViewModelTest::leavesFeedbackAloneForTheWatcher()
{
    const TestBatch test;
    test.add({ test.make("a.mp4") }, false);
    QVERIFY(!test.batch->dropFeedback());
    test.add({ test.make("a.mp4") }, true);
    test.add({ test.make("a.mp4") }, false);
    QVERIFY(test.batch->dropFeedback());
    test.add({ test.make("a.txt") }, false);
    QVERIFY(!test.batch->dropFeedback());
}

void RenamerViewModelTest::recognisesFilesRenamedEarlier()
{
    TestBatch test;
    test.log.record("/elsewhere/scan.txt", "/elsewhere/Invoice.txt");
    test.add({ test.make("Invoice.txt"), test.make("sub/scan.txt"), test.make("invoice.txt") });
    QCOMPARE(test.statuses(), (QStringList { u"alreadyRenamed"_s, u"pending"_s, u"pending"_s }));
    test.suggest();
    QCOMPARE(test.statuses(), (QStringList { u"alreadyRenamed"_s, u"suggested"_s, u"suggested"_s }));
}

void RenamerViewModelTest::takesNamesMadeElsewhere_data()
{
    QTest::addColumn<QString>("before"); // what the batch knows of the file already
    QTest::addColumn<bool>("isSameFile");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("outcome");
    const QString offered = u"suggested: Offered [one,two]"_s;
    QTest::newRow("a new file") << u""_s << true << u"Offered"_s << offered;
    QTest::newRow("another file under the path") << u""_s << false << u"Offered"_s << u"pending:  []"_s;
    QTest::newRow("a name that is not clean")
        << u""_s << true << u" ../Off\nered\" "_s << u"suggested: ..Offered [one,two]"_s;
    QTest::newRow("a name of which nothing is left") << u""_s << true << u"//"_s << u"pending:  []"_s;
    QTest::newRow("a file that waits") << u"added"_s << true << u"Offered"_s << offered;
    QTest::newRow("a file that has a name") << u"suggested"_s << true << u"Offered"_s << u"suggested: new scan []"_s;
    QTest::newRow("a file that Varlo has named") << u"renamed"_s << true << u"Offered"_s << u"alreadyRenamed:  []"_s;
}

void RenamerViewModelTest::takesNamesMadeElsewhere()
{
    QFETCH(QString, before);
    QFETCH(bool, isSameFile);
    QFETCH(QString, name);
    TestBatch test;
    const Path file = test.make("scan.txt");
    if (before == "renamed"_L1)
        test.log.record("/elsewhere/old.txt", file);
    else if (!before.isEmpty())
        test.add({ file });
    if (before == "suggested"_L1)
        test.suggest();
    struct stat status { };
    QCOMPARE(::stat(file.c_str(), &status), 0);
    const FileIdentity identity { status.st_dev, status.st_ino + (isSameFile ? 0 : 1) };
    QCoro::waitFor(test.batch->addFiles({ file }, true, { { file, identity, name, { u"One"_s, u"two, one"_s } } }));
    const FileItem &item = test.batch->files().front();
    QTEST(rawValue(item.status) + u": "_s + item.suggestedName + u" ["_s + item.suggestedTags.join(u',') + u']',
        "outcome");
    QCOMPARE(test.batch->hasPending(), std::holds_alternative<FileItem::Pending>(item.status));
    QCOMPARE(test.batch->renamableCount(), item.suggestedName.isEmpty() ? 0 : 1);
}

void RenamerViewModelTest::servesAdmissionsInTurnUntilCleared()
{
    const TestBatch test;
    for (int i = 0; i < 3000; ++i)
        test.make("big/" + std::to_string(i) + ".txt");
    auto first = test.batch->addFiles({ test.folder / "big" }, true);
    auto second = test.batch->addFiles({ test.make("late.txt") }, true);
    QCoro::waitFor(second);
    QVERIFY(first.isReady());
    QCOMPARE(test.batch->files().size(), 3001U);
    QCOMPARE(test.names().last(), u"late.txt"_s);

    test.batch->clear();
    auto third = test.batch->addFiles({ test.folder / "big" }, true);
    test.batch->clear();
    QCoro::waitFor(third);
    QVERIFY(test.batch->files().empty());
    QVERIFY(!test.batch->dropFeedback());
    test.add({ test.folder / "late.txt" });
    QCOMPARE(test.batch->files().size(), 1U);
}

void RenamerViewModelTest::keepsFiveInFlightAndTakesLateFiles()
{
    TestBatch test;
    for (int i = 0; i < 12; ++i)
        test.make("f/" + std::to_string(i) + ".txt");
    test.add({ test.folder / "f" });
    QSignalSpy durations(test.batch.get(), &RenamerViewModel::lastSuggestSecondsChanged);
    test.suggester.isHeld = true;
    auto run = test.batch->suggestAll();
    QTRY_COMPARE_WITH_TIMEOUT(test.suggester.waiting, 5, 60'000);
    QCOMPARE(test.statuses().count(u"processing"_s), 5);
    QVERIFY(test.batch->isSuggesting());

    auto second = test.batch->suggestAll();
    QVERIFY(second.isReady()); // one run at a time
    test.add({ test.make("late.txt") });
    QCOMPARE(test.statuses().last(), u"pending"_s);
    test.suggester.letGo();
    QCoro::waitFor(run);
    QCOMPARE(test.suggester.mostWaiting, 5);
    QCOMPARE(test.statuses().count(u"suggested"_s), 13);
    QCOMPARE(durations.count(), 1);
    QVERIFY(test.batch->lastSuggestSeconds());
    QVERIFY(!test.batch->isSuggesting());

    test.suggest(); // with nothing pending it ends at once and counts as a run
    QCOMPARE(durations.count(), 2);
}

void RenamerViewModelTest::landsEveryOutcomeOnItsFile()
{
    TestBatch test;
    const auto read = [&](const char *name, const Extraction &extraction) {
        test.reader.extractions.insert_or_assign(test.make(name), extraction);
    };
    const auto answer = [&](const char *name, const NameSuggestionError &error) {
        test.make(std::string(name) + ".txt");
        test.suggester.errors.insert_or_assign(QString::fromLatin1(name), error);
    };
    read("a unreadable.txt", Unreadable { u"Permission denied"_s });
    read("b empty.txt", NoTextFound {});
    read("c strange.txt", NotSupportedYet {});
    answer("d blank", NoReadableContent {});
    answer("e refused", ApiError { u"credit balance is too low"_s });
    answer("f keyless", MissingAPIKey {});
    answer("g offline", TransportError { u"Connection refused"_s });
    answer("h odd", InvalidResponse {});
    test.make("i good.txt");
    test.add({ test.folder });
    test.suggest();
    QCOMPARE(test.statuses(),
        (QStringList { u"failed: Permission denied"_s, u"noTextFound"_s, u"notSupportedYet"_s, u"noTextFound"_s,
            u"failed: credit balance is too low"_s, u"failed: No API key set."_s, u"failed: Connection refused"_s,
            u"failed: Unexpected response from the model."_s, u"suggested"_s }));
    QCOMPARE(test.batch->files().back().suggestedName, u"new i good"_s);
    QCOMPARE(test.batch->files().front().suggestedName, QString());

    test.suggester.errors.clear();
    test.suggest(); // nothing is asked again
    QCOMPARE(test.statuses().count(u"suggested"_s), 1);
}

void RenamerViewModelTest::asksWithTheSettingsOfThePass()
{
    TestBatch test;
    test.locale.code = u"es"_s;
    test.batch->setFilenameLanguageOption(FollowSystem {});
    test.batch->setSelectedTemplateID(u"contract"_s);
    test.add({ test.make("scan.v2.txt") });
    test.suggester.isHeld = true;
    auto run = test.batch->suggestAll();
    QTRY_COMPARE_WITH_TIMEOUT(test.suggester.waiting, 1, 60'000);

    // What changes now holds for the next pass only; the file in flight keeps the name it was asked for.
    QVERIFY(test.preferences.set(Preference::writeFinderTags, true));
    test.batch->setFilenameLanguageOption(FilenameLanguage::Dutch);
    test.batch->setSelectedTemplateID(u"no such template"_s);
    test.add({ test.make("late.txt") });
    test.suggester.letGo();
    QCoro::waitFor(run);

    QCOMPARE(test.suggester.requests.size(), 2U);
    const SuggestionRequest &first = test.suggester.requests[0];
    QCOMPARE(first.existingName, u"scan.v2"_s);
    QCOMPARE(first.language, FilenameLanguage::Spanish);
    QVERIFY(first.nameTemplate && first.nameTemplate->id == "contract"_L1);
    QVERIFY(!first.includeTags);
    const SuggestionRequest &second = test.suggester.requests[1];
    QCOMPARE(second.language, FilenameLanguage::Dutch);
    QVERIFY(!second.nameTemplate);
    QVERIFY(second.includeTags);
    QCOMPARE(test.statuses(), (QStringList { u"suggested"_s, u"suggested"_s }));
    QCOMPARE(test.batch->files()[0].suggestedTags, QStringList {});
    QCOMPARE(test.batch->files()[1].suggestedTags, QStringList { u"tag"_s });
}

void RenamerViewModelTest::dropsResultsOfClearedFiles()
{
    TestBatch test;
    for (int i = 0; i < 8; ++i)
        test.make("f/" + std::to_string(i) + ".txt");
    test.add({ test.folder / "f" });
    test.suggester.isHeld = true;
    auto run = test.batch->suggestAll();
    QTRY_COMPARE_WITH_TIMEOUT(test.suggester.waiting, 5, 60'000);
    test.batch->clear();
    QVERIFY(!test.batch->lastSuggestSeconds());
    test.add({ test.make("new.txt") });
    test.suggester.letGo();
    QCoro::waitFor(run);
    QCOMPARE(test.suggester.requests.size(), 6U); // the cleared files that waited were never asked for
    QCOMPARE(test.statuses(), QStringList { u"suggested"_s });
    QVERIFY(test.batch->lastSuggestSeconds());
}

void RenamerViewModelTest::resetsOnlySuggestedFilesOnAChoice()
{
    TestBatch test;
    test.reader.extractions.insert_or_assign(test.make("empty.txt"), NoTextFound {});
    test.make("good.txt");
    test.add({ test.folder });
    const QStringList done { u"noTextFound"_s, u"suggested"_s };
    const QStringList reset { u"noTextFound"_s, u"pending"_s };
    test.suggest();
    test.batch->setFilenameLanguageOption(FilenameLanguage::Auto); // as it was
    test.batch->setSelectedTemplateID({});
    QCOMPARE(test.statuses(), done);
    test.batch->setFilenameLanguageOption(FollowSystem {});
    QCOMPARE(test.statuses(), reset);
    QCOMPARE(test.batch->files()[1].suggestedName, QString());
    test.suggest();
    test.batch->setSelectedTemplateID(u"invoice"_s);
    QCOMPARE(test.statuses(), reset);
    test.suggest();
    test.batch->setSelectedTemplateID({});
    QCOMPARE(test.statuses(), reset);
}

void RenamerViewModelTest::asksAgainForWantOfKeyAlone()
{
    TestBatch test;
    const std::map<std::string, NameSuggestionError> errors { { "a keyless", MissingAPIKey {} },
        { "b locked", LockedAPIKey {} }, { "c unsendable", UnusableAPIKey {} },
        { "d refused", ApiError { u"invalid x-api-key"_s, true } }, { "e busy", ApiError { u"HTTP 529"_s } },
        { "f offline", TransportError { u"Connection refused"_s } }, { "g named by hand", MissingAPIKey {} } };
    for (const auto &[name, error] : errors) {
        test.make("f/" + name + ".txt");
        test.suggester.errors.insert_or_assign(QString::fromStdString(name), error);
    }
    test.add({ test.folder / "f" });
    test.suggest();
    test.batch->setSuggestedName(6, u"typed"_s);
    test.batch->askAgainForWantOfKey();
    QCOMPARE(test.statuses(),
        (QStringList { u"pending"_s, u"pending"_s, u"pending"_s, u"pending"_s, u"failed: HTTP 529"_s,
            u"failed: Connection refused"_s, u"failed: No API key set."_s }));
    QCOMPARE(test.batch->files()[6].suggestedName, u"typed"_s);
    QVERIFY(test.batch->hasPending());
}

void RenamerViewModelTest::mayBeDestroyedDuringEverything()
{
    TestBatch test;
    test.add({ test.make("a.txt") });
    test.suggester.isHeld = true;
    auto run = test.batch->suggestAll();
    QTRY_COMPARE_WITH_TIMEOUT(test.suggester.waiting, 1, 60'000);
    auto admission = test.batch->addFiles({ test.make("b.txt") }, true);
    auto waiting = test.batch->addFiles({ test.make("c.txt") }, true);
    test.batch.reset();
    test.suggester.letGo();
    QTRY_VERIFY_WITH_TIMEOUT(run.isReady() && admission.isReady(), 60'000);
}

void RenamerViewModelTest::keepsItsCounts()
{
    TestBatch test;
    test.make("f/a.txt", "123");
    test.make("f/b.txt", "45");
    test.add({ test.folder / "f" });
    QCOMPARE(test.batch->totalBytes(), 5);
    QCOMPARE(test.batch->completedCount(), 0);
    QVERIFY(test.batch->hasPending());
    test.suggester.isHeld = true;
    auto run = test.batch->suggestAll();
    QTRY_COMPARE_WITH_TIMEOUT(test.suggester.waiting, 2, 60'000);
    QVERIFY(!test.batch->hasPending());
    QCOMPARE(test.batch->completedCount(), 0);
    test.suggester.letGo();
    QCoro::waitFor(run);
    QCOMPARE(test.batch->completedCount(), 2);
    test.batch->setFilenameLanguageOption(FilenameLanguage::Dutch);
    QCOMPARE(test.batch->completedCount(), 0);
    test.batch->clear();
    QCOMPARE(test.batch->totalBytes(), 0);
    QVERIFY(!test.batch->hasPending());
}

void RenamerViewModelTest::showsNothingThatActs()
{
    TestBatch test;
    test.add({ test.make("down\nload\x1b/annex\xe2\x80\xae\nfdp\xff.txt") });
    const auto shown = [&](int role) { return test.batch->index(0).data(role).toString(); };
    QCOMPARE(shown(RenamerViewModel::FileNameRole), u"annex\\u202e\\nfdp\\377.txt"_s);
    QCOMPARE(shown(RenamerViewModel::FolderNameRole), u"down\\nload\\033"_s);
    test.suggest();
    QCOMPARE(shown(RenamerViewModel::SuggestedNameRole), u"new annexfdp\uFFFD"_s);
    QCoro::waitFor(test.batch->renameAll());
    QCOMPARE(shown(RenamerViewModel::FileNameRole), u"new annexfdp\uFFFD.txt"_s);
    QCOMPARE(shown(RenamerViewModel::PreviousNameRole), u"annex\\u202e\\nfdp\uFFFD.txt"_s);
    test.add({ test.make("b.txt") });
    test.suggester.errors.insert_or_assign(
        u"b"_s, ApiError { u"no\nway\u202e"_s + u"e"_s + u"\u0301"_s.repeated(9999) });
    test.suggest();
    const QString message = test.batch->index(1).data(RenamerViewModel::MessageRole).toString();
    QVERIFY2(message.startsWith(u"no\\nway\\u202e"_s) && message.size() < 100, qPrintable(message));
}

QTEST_GUILESS_MAIN(RenamerViewModelTest)
#include "tst_RenamerViewModel.moc"
