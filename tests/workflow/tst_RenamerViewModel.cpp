// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "fakes/FakeClock.h"
#include "fakes/FakeContentReader.h"
#include "fakes/FakeNameSuggester.h"
#include "fakes/FakePreferenceStore.h"
#include "fakes/FakeSystemLocale.h"
#include "workflow/RenamerViewModel.h"
#include <filesystem>
#include <fstream>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

using namespace Varlo;
using namespace Qt::StringLiterals;
using Path = std::filesystem::path;

namespace {

struct NoPanel final : FolderAccessPanel {
    [[nodiscard]] QCoro::Task<std::optional<Path>> ask(Path) override { co_return std::nullopt; }
};

/// A batch with everything around it faked, and a folder of real files.
struct Bench {
    QTemporaryDir temporary;
    Path folder = Path(temporary.path().toStdString());
    FakePreferenceStore store;
    Preferences preferences { store };
    TemplateStore templates { preferences };
    FakeClock clock;
    NoPanel panel;
    RenameJournal journal { folder / ".state" };
    FileRenamer renamer { journal, clock };
    FolderAccess access { preferences, panel };
    RenameLog log { preferences, renamer, access };
    FakeContentReader reader;
    FakeNameSuggester suggester;
    FakeSystemLocale locale;
    std::unique_ptr<RenamerViewModel> batch = std::make_unique<RenamerViewModel>(
        RenamerViewModel::Collaborators { reader, suggester, templates, log, preferences, locale });

    Path make(const Path &relative, const std::string &content = "x") const
    {
        const Path path = folder / relative;
        std::filesystem::create_directories(path.parent_path());
        std::ofstream(path) << content;
        return path;
    }
    void add(std::vector<Path> paths, bool reportEmpty = true) const
    {
        QCoro::waitFor(batch->addFiles(std::move(paths), reportEmpty));
    }
    void suggest() const { QCoro::waitFor(batch->suggestAll()); }
    [[nodiscard]] QStringList names() const
    {
        QStringList names;
        for (const FileItem &item : batch->files())
            names.append(QString::fromStdString(item.path.lexically_relative(folder).native()));
        return names;
    }
    [[nodiscard]] QStringList statuses() const
    {
        QStringList words;
        for (const FileItem &item : batch->files()) {
            const auto *failed = std::get_if<FileItem::Failed>(&item.status);
            words.append(rawValue(item.status) + (failed ? u": "_s + failed->message : QString()));
        }
        return words;
    }
};

} // namespace

class RenamerViewModelTest : public QObject {
    Q_OBJECT
private slots:
    void admits_data();
    void admits();
    void passesOverDuplicatesAndSaysSo();
    void leavesFeedbackAloneForTheWatcher();
    void recognisesFilesRenamedEarlier();
    void servesAdmissionsInTurnUntilCleared();
    void keepsFiveInFlightAndTakesLateFiles();
    void landsEveryOutcomeOnItsFile();
    void asksWithTheSettingsOfThePass();
    void dropsResultsOfClearedFiles();
    void resetsOnlySuggestedFilesOnAChoice();
    void mayBeDestroyedDuringEverything();
    void keepsItsCounts();
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
    const Bench bench;
    for (const QString &file : onDisk)
        bench.make(file.toStdString());
    std::vector<Path> paths;
    for (const QString &path : given)
        paths.push_back(bench.folder / path.toStdString());
    bench.add(paths);
    QTEST(bench.names(), "admitted");
    QCOMPARE(bench.batch->dropFeedback().has_value(), bench.batch->files().empty());
}

void RenamerViewModelTest::passesOverDuplicatesAndSaysSo()
{
    const Bench bench;
    const Path file = bench.make("a.txt", "four");
    bench.add({ file, file });
    QCOMPARE(bench.names(), QStringList { u"a.txt"_s });
    QCOMPARE(bench.batch->files().front().byteSize, 4);
    QVERIFY(!bench.batch->dropFeedback());
    bench.add({ bench.folder });
    QCOMPARE(bench.names(), QStringList { u"a.txt"_s });
    QCOMPARE(bench.batch->dropFeedback(), RenamerViewModel::DropFeedback::NothingRenameable);
    bench.add({ bench.make("b.txt") });
    QVERIFY(!bench.batch->dropFeedback());
}

void RenamerViewModelTest::leavesFeedbackAloneForTheWatcher()
{
    const Bench bench;
    bench.add({ bench.make("a.mp4") }, false);
    QVERIFY(!bench.batch->dropFeedback());
    bench.add({ bench.make("a.mp4") }, true);
    bench.add({ bench.make("a.mp4") }, false);
    QVERIFY(bench.batch->dropFeedback());
    bench.add({ bench.make("a.txt") }, false);
    QVERIFY(!bench.batch->dropFeedback());
}

void RenamerViewModelTest::recognisesFilesRenamedEarlier()
{
    Bench bench;
    bench.log.record("/elsewhere/scan.txt", "/elsewhere/Invoice.txt");
    bench.add({ bench.make("Invoice.txt"), bench.make("sub/scan.txt"), bench.make("invoice.txt") });
    QCOMPARE(bench.statuses(), (QStringList { u"alreadyRenamed"_s, u"pending"_s, u"pending"_s }));
    bench.suggest();
    QCOMPARE(bench.statuses(), (QStringList { u"alreadyRenamed"_s, u"suggested"_s, u"suggested"_s }));
}

void RenamerViewModelTest::servesAdmissionsInTurnUntilCleared()
{
    const Bench bench;
    for (int i = 0; i < 3000; ++i)
        bench.make("big/" + std::to_string(i) + ".txt");
    auto first = bench.batch->addFiles({ bench.folder / "big" }, true);
    auto second = bench.batch->addFiles({ bench.make("late.txt") }, true);
    QVERIFY(bench.batch->files().empty()); // nothing happens before the event loop goes on
    QCoro::waitFor(second);
    QVERIFY(first.isReady());
    QCOMPARE(bench.batch->files().size(), 3001U);
    QCOMPARE(bench.names().last(), u"late.txt"_s);

    bench.batch->clear();
    auto third = bench.batch->addFiles({ bench.folder / "big" }, true);
    bench.batch->clear();
    QCoro::waitFor(third);
    QVERIFY(bench.batch->files().empty());
    QVERIFY(!bench.batch->dropFeedback());
    bench.add({ bench.folder / "late.txt" });
    QCOMPARE(bench.batch->files().size(), 1U);
}

void RenamerViewModelTest::keepsFiveInFlightAndTakesLateFiles()
{
    Bench bench;
    for (int i = 0; i < 12; ++i)
        bench.make("f/" + std::to_string(i) + ".txt");
    bench.add({ bench.folder / "f" });
    QSignalSpy durations(bench.batch.get(), &RenamerViewModel::lastSuggestSecondsChanged);
    bench.suggester.isHeld = true;
    auto run = bench.batch->suggestAll();
    QTRY_COMPARE(bench.suggester.waiting, 5);
    QCOMPARE(bench.statuses().count(u"processing"_s), 5);
    QVERIFY(bench.batch->isSuggesting());

    auto second = bench.batch->suggestAll();
    QVERIFY(second.isReady()); // one run at a time
    bench.add({ bench.make("late.txt") });
    QCOMPARE(bench.statuses().last(), u"pending"_s);
    bench.suggester.letGo();
    QCoro::waitFor(run);
    QCOMPARE(bench.suggester.mostWaiting, 5);
    QCOMPARE(bench.statuses().count(u"suggested"_s), 13);
    QCOMPARE(durations.count(), 1);
    QVERIFY(bench.batch->lastSuggestSeconds());
    QVERIFY(!bench.batch->isSuggesting());

    bench.suggest(); // with nothing pending it ends at once and counts as a run
    QCOMPARE(durations.count(), 2);
}

void RenamerViewModelTest::landsEveryOutcomeOnItsFile()
{
    Bench bench;
    const auto read = [&](const char *name, const Extraction &extraction) {
        bench.reader.extractions.insert_or_assign(bench.make(name), extraction);
    };
    const auto answer = [&](const char *name, const NameSuggestionError &error) {
        bench.make(std::string(name) + ".txt");
        bench.suggester.errors.insert_or_assign(QString::fromLatin1(name), error);
    };
    read("a unreadable.txt", Unreadable { u"Permission denied"_s });
    read("b empty.txt", NoTextFound {});
    read("c strange.txt", NotSupportedYet {});
    answer("d blank", NoReadableContent {});
    answer("e refused", ApiError { u"credit balance is too low"_s });
    answer("f keyless", MissingAPIKey {});
    answer("g offline", TransportError { u"Connection refused"_s });
    answer("h odd", InvalidResponse {});
    bench.make("i good.txt");
    bench.add({ bench.folder });
    bench.suggest();
    QCOMPARE(bench.statuses(),
        (QStringList { u"failed: Permission denied"_s, u"noTextFound"_s, u"notSupportedYet"_s, u"noTextFound"_s,
            u"failed: credit balance is too low"_s, u"failed: No API key set."_s, u"failed: Connection refused"_s,
            u"failed: Unexpected response from the model."_s, u"suggested"_s }));
    QCOMPARE(bench.batch->files().back().suggestedName, u"new i good"_s);
    QCOMPARE(bench.batch->files().front().suggestedName, QString());

    bench.suggester.errors.clear();
    bench.suggest(); // nothing is asked again
    QCOMPARE(bench.statuses().count(u"suggested"_s), 1);
}

void RenamerViewModelTest::asksWithTheSettingsOfThePass()
{
    Bench bench;
    bench.locale.code = u"es"_s;
    bench.batch->setFilenameLanguageOption(FollowSystem {});
    bench.batch->setSelectedTemplateID(u"contract"_s);
    bench.add({ bench.make("scan.v2.txt") });
    bench.suggester.isHeld = true;
    auto run = bench.batch->suggestAll();
    QTRY_COMPARE(bench.suggester.waiting, 1);

    // What changes now holds for the next pass only; the file in flight keeps the name it was asked for.
    QVERIFY(bench.preferences.set(Preference::writeFinderTags, true));
    bench.batch->setFilenameLanguageOption(FilenameLanguage::Dutch);
    bench.batch->setSelectedTemplateID(u"no such template"_s);
    bench.add({ bench.make("late.txt") });
    bench.suggester.letGo();
    QCoro::waitFor(run);

    QCOMPARE(bench.suggester.requests.size(), 2U);
    const SuggestionRequest &first = bench.suggester.requests[0];
    QCOMPARE(first.existingName, u"scan.v2"_s);
    QCOMPARE(first.language, FilenameLanguage::Spanish);
    QVERIFY(first.nameTemplate && first.nameTemplate->id == "contract"_L1);
    QVERIFY(!first.includeTags);
    const SuggestionRequest &second = bench.suggester.requests[1];
    QCOMPARE(second.language, FilenameLanguage::Dutch);
    QVERIFY(!second.nameTemplate);
    QVERIFY(second.includeTags);
    QCOMPARE(bench.statuses(), (QStringList { u"suggested"_s, u"suggested"_s }));
    QCOMPARE(bench.batch->files()[0].suggestedTags, QStringList {});
    QCOMPARE(bench.batch->files()[1].suggestedTags, QStringList { u"tag"_s });
}

void RenamerViewModelTest::dropsResultsOfClearedFiles()
{
    Bench bench;
    for (int i = 0; i < 8; ++i)
        bench.make("f/" + std::to_string(i) + ".txt");
    bench.add({ bench.folder / "f" });
    bench.suggester.isHeld = true;
    auto run = bench.batch->suggestAll();
    QTRY_COMPARE(bench.suggester.waiting, 5);
    bench.batch->clear();
    QVERIFY(!bench.batch->lastSuggestSeconds());
    bench.add({ bench.make("new.txt") });
    bench.suggester.letGo();
    QCoro::waitFor(run);
    QCOMPARE(bench.suggester.requests.size(), 6U); // the cleared files that waited were never asked for
    QCOMPARE(bench.statuses(), QStringList { u"suggested"_s });
    QVERIFY(bench.batch->lastSuggestSeconds());
}

void RenamerViewModelTest::resetsOnlySuggestedFilesOnAChoice()
{
    Bench bench;
    bench.reader.extractions.insert_or_assign(bench.make("empty.txt"), NoTextFound {});
    bench.make("good.txt");
    bench.add({ bench.folder });
    const QStringList done { u"noTextFound"_s, u"suggested"_s };
    const QStringList reset { u"noTextFound"_s, u"pending"_s };
    bench.suggest();
    bench.batch->setFilenameLanguageOption(FilenameLanguage::Auto); // as it was
    bench.batch->setSelectedTemplateID({});
    QCOMPARE(bench.statuses(), done);
    bench.batch->setFilenameLanguageOption(FollowSystem {});
    QCOMPARE(bench.statuses(), reset);
    QCOMPARE(bench.batch->files()[1].suggestedName, QString());
    bench.suggest();
    bench.batch->setSelectedTemplateID(u"invoice"_s);
    QCOMPARE(bench.statuses(), reset);
    bench.suggest();
    bench.batch->setSelectedTemplateID({});
    QCOMPARE(bench.statuses(), reset);
}

void RenamerViewModelTest::mayBeDestroyedDuringEverything()
{
    Bench bench;
    bench.add({ bench.make("a.txt") });
    bench.suggester.isHeld = true;
    auto run = bench.batch->suggestAll();
    QTRY_COMPARE(bench.suggester.waiting, 1);
    auto admission = bench.batch->addFiles({ bench.make("b.txt") }, true);
    auto waiting = bench.batch->addFiles({ bench.make("c.txt") }, true);
    bench.batch.reset();
    bench.suggester.letGo();
    QTRY_VERIFY(run.isReady() && admission.isReady());
}

void RenamerViewModelTest::keepsItsCounts()
{
    Bench bench;
    bench.make("f/a.txt", "123");
    bench.make("f/b.txt", "45");
    bench.add({ bench.folder / "f" });
    QCOMPARE(bench.batch->totalBytes(), 5);
    QCOMPARE(bench.batch->completedCount(), 0);
    QVERIFY(bench.batch->hasPending());
    bench.suggester.isHeld = true;
    auto run = bench.batch->suggestAll();
    QTRY_COMPARE(bench.suggester.waiting, 2);
    QVERIFY(!bench.batch->hasPending());
    QCOMPARE(bench.batch->completedCount(), 0);
    bench.suggester.letGo();
    QCoro::waitFor(run);
    QCOMPARE(bench.batch->completedCount(), 2);
    bench.batch->setFilenameLanguageOption(FilenameLanguage::Dutch);
    QCOMPARE(bench.batch->completedCount(), 0);
    bench.batch->clear();
    QCOMPARE(bench.batch->totalBytes(), 0);
    QVERIFY(!bench.batch->hasPending());
}

QTEST_GUILESS_MAIN(RenamerViewModelTest)
#include "tst_RenamerViewModel.moc"
