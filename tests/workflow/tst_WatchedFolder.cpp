// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/shownPath.h"
#include "settings/watchFolderPath.h"
#include "workflow/takeNewFiles.h"
#include "workflow/TestBatch.h"
#include "workflow/WatchedFolder.h"
#include <QSignalSpy>
#include <QTest>

using namespace Varlo;
using namespace Qt::StringLiterals;
using Path = std::filesystem::path;

class WatchedFolderTest : public QObject {
    Q_OBJECT
private slots:
    void suggestsNamesForNewFiles();
    void passesOverFilesOfTheBatch();
    void followsThePreferencesWhoeverChangesThem();
    void restartsOnlyWhereItMatters();
    void findsAFolderByItsBytes();
    void opensTheGrantOfTheFolder();
};

struct Watched : TestBatch {
    FolderWatcher watcher { std::chrono::milliseconds(0) };
    WatchedFolder watched { preferences, access, watcher, *batch };

    Watched()
    {
        for (const char *name : { "one", "two" })
            std::filesystem::create_directory(folder / name);
        prefer(Preference::watchFolderEnabled, true);
        prefer(Preference::watchFolderPath, shownPath(folder / "one"));
        watched.apply();
    }
    void prefer(const PreferenceKey &key, const PreferenceValue &value) { store.changeElsewhere(key.name, value); }
    /// The batch once the event loop has nothing left to do about this new file of a watched folder.
    [[nodiscard]] QStringList namesAfter(const Path &newFile)
    {
        const std::string name = make(newFile).filename().native();
        const bool came = QTest::qWaitFor(
            [&] {
                return !batch->files().empty() && batch->files().back().path.filename() == name
                    && !batch->isSuggesting() && !batch->hasPending();
            },
            60'000);
        return came ? names() : QStringList { u"it did not come"_s };
    }
};

void WatchedFolderTest::suggestsNamesForNewFiles()
{
    Watched test;
    QCOMPARE(test.namesAfter("one/a.txt"), QStringList { u"one/a.txt"_s });
    QCOMPARE(test.statuses(), QStringList { u"suggested"_s });
    test.suggester.isHeld = true;
    test.make("one/b.txt");
    QTRY_COMPARE_WITH_TIMEOUT(test.suggester.waiting, 1, 60'000);
    test.make("one/c.txt"); // during a run, which takes it too
    QTRY_COMPARE_WITH_TIMEOUT(test.batch->files().size(), 3U, 60'000);
    test.suggester.letGo();
    QTRY_COMPARE_WITH_TIMEOUT(test.statuses().count(u"suggested"_s), 3, 60'000);
}

void WatchedFolderTest::passesOverFilesOfTheBatch()
{
    Watched test;
    const Path known = test.make("elsewhere/known.txt");
    test.add({ known });
    QVERIFY(takeNewFiles(test.batch.get(), { known }).isReady());
    QCOMPARE(test.statuses(), QStringList { u"pending"_s }); // nothing new, so no run either
    QCoro::waitFor(takeNewFiles(test.batch.get(), { known, test.make("gone.mp4") }));
    QCOMPARE(test.statuses(), QStringList { u"suggested"_s }); // a run, though nothing was admitted
    QVERIFY(!test.batch->dropFeedback());

    auto task = takeNewFiles(test.batch.get(), { test.make("late.txt") });
    test.batch.reset();
    QCoro::waitFor(task);
}

void WatchedFolderTest::followsThePreferencesWhoeverChangesThem()
{
    Watched test;
    test.watcher.stop();
    test.make("one/old.txt");
    test.make("two/old.txt");
    test.watched.apply(); // from here on they are existing ones
    QSignalSpy changes(&test.watcher, &FolderWatcher::isWatchingChanged);
    test.prefer(Preference::watchFolderPath, shownPath(test.folder / "two"));
    QTRY_COMPARE_WITH_TIMEOUT(changes.count(), 2, 60'000); // stopped and started
    test.make("one/new.txt");
    QCOMPARE(test.namesAfter("two/new.txt"), QStringList { u"two/new.txt"_s });
    test.prefer(Preference::watchFolderIncludeExisting, true);
    QTRY_COMPARE_WITH_TIMEOUT(test.names(), (QStringList { u"two/new.txt"_s, u"two/old.txt"_s }), 60'000);

    for (const QString &nothing : { u"/nonexistent"_s, QString() }) {
        test.prefer(Preference::watchFolderPath, nothing);
        QTRY_VERIFY_WITH_TIMEOUT(!test.watcher.isWatching(), 60'000);
        test.prefer(Preference::watchFolderPath, shownPath(test.folder / "two"));
        QTRY_VERIFY_WITH_TIMEOUT(test.watcher.isWatching(), 60'000);
    }
    test.prefer(Preference::watchFolderEnabled, false);
    QTRY_VERIFY_WITH_TIMEOUT(!test.watcher.isWatching(), 60'000);
}

void WatchedFolderTest::restartsOnlyWhereItMatters()
{
    Watched test;
    QSignalSpy changes(&test.watcher, &FolderWatcher::isWatchingChanged);
    test.prefer(Preference::writeFinderTags, true);
    test.prefer(Preference::watchFolderPathBytes, QByteArray("/elsewhere")); // not what the path shows
    QCoreApplication::processEvents();
    test.watched.apply();
    QCOMPARE(changes.count(), 0); // or files not reported yet would be lost
    test.prefer(Preference::watchFolderPath, shownPath(test.folder / "two"));
    test.prefer(Preference::watchFolderIncludeExisting, true);
    QTRY_COMPARE_WITH_TIMEOUT(changes.count(), 2, 60'000);
    QCoreApplication::processEvents();
    QCOMPARE(changes.count(), 2); // one stop and one start for both
    std::filesystem::remove_all(test.folder / "two");
    QTRY_VERIFY_WITH_TIMEOUT(!test.watcher.isWatching(), 60'000);
    std::filesystem::create_directory(test.folder / "two");
    test.watched.apply();
    QVERIFY(test.watcher.isWatching());
}

void WatchedFolderTest::findsAFolderByItsBytes()
{
    Watched test;
    for (const char *name : { "caf\xe8", "caf\xe9" })
        std::filesystem::create_directory(test.folder / name);
    const auto cleanUp = qScopeGuard([&] { // QTemporaryDir leaves names that are not UTF-8
        for (const char *name : { "caf\xe8", "caf\xe9" })
            std::filesystem::remove_all(test.folder / name);
    });
    for (const char *name : { "caf\xe8", "caf\xe9", "two" }) {
        const Path folder = test.folder / name;
        QVERIFY(setWatchFolderPath(test.preferences, folder));
        QCOMPARE(watchFolderPath(test.preferences), folder);
    }
    QVERIFY(setWatchFolderPath(test.preferences, test.folder / "caf\xe8"));
    test.watched.apply();
    QCOMPARE(test.namesAfter("caf\xe8/a.txt"), QStringList { u"caf\uFFFD/a.txt"_s });
}

void WatchedFolderTest::opensTheGrantOfTheFolder()
{
    Watched test;
    FolderAccess(test.preferences, test.panel).addGrant(test.folder / "two");
    test.prefer(Preference::watchFolderPath, shownPath(test.folder / "two"));
    test.watched.apply();
    test.store.values.erase(Preference::folderBookmarks.name);
    QVERIFY(test.access.beginAccess(test.folder / "two")); // open since, though nothing is stored any more
    QVERIFY(!test.access.beginAccess(test.folder / "one"));
}

QTEST_GUILESS_MAIN(WatchedFolderTest)
#include "tst_WatchedFolder.moc"
