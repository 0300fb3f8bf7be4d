// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "watch/FolderWatcher.h"

#include <fcntl.h>
#include <fstream>
#include <functional>
#include <QSemaphore>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QThreadPool>
#include <unistd.h>

using namespace Varlo;
using namespace std::chrono_literals;
using Path = std::filesystem::path;
using Names = std::vector<std::string>;
using Action = std::function<void(const Path &folder)>;

class FolderWatcherTest : public QObject {
    Q_OBJECT
private slots:
    void initTestCase();
    void reports_data();
    void reports();
    void reportsAPathOnce();
    void waitsUntilItIsQuiet_data();
    void waitsUntilItIsQuiet();
    void reportsALargeFolderAtOnce();
    void missesNothingWhileTheFirstListingTakesItsTime();
    void reportsNothingOfAnOutdatedListing_data();
    void reportsNothingOfAnOutdatedListing();
    void keepsWhatComesDuringAPauseForLater();
    void forgetsEverythingWhenStopped();
    void beginsAnewWithAnotherFolder();
    void stopsWhenTheFolderIsLost_data();
    void stopsWhenTheFolderIsLost();
    void refuses_data();
    void refuses();
};

static void make(const Path &file, const std::string &content = "x") { std::ofstream(file) << content; }

/// A watched folder beside another one. The watcher's time never passes unless it is told to.
struct Watched {
    QTemporaryDir temporary;
    Path root = std::filesystem::canonical(temporary.path().toStdString());
    Path folder = root / "watched";
    std::unique_ptr<FolderWatcher> watcher = std::make_unique<FolderWatcher>(delay);
    std::vector<Names> reports; ///< paths relative to the folder
    int lossCount = 0;

    static constexpr std::chrono::milliseconds delay = 1h;

    Watched()
    {
        std::filesystem::create_directory(folder);
        std::filesystem::create_directory(root / "elsewhere");
        QObject::connect(watcher.get(), &FolderWatcher::newFilesFound, [this](const std::vector<Path> &files) {
            Names names;
            for (const Path &file : files)
                names.push_back(file.lexically_relative(folder).native());
            reports.push_back(names);
        });
        QObject::connect(watcher.get(), &FolderWatcher::folderLost, [this] { ++lossCount; });
    }

    ~Watched() { std::filesystem::remove_all(folder); } // QTemporaryDir leaves names that are not UTF-8
    Q_DISABLE_COPY_MOVE(Watched)

    [[nodiscard]] QTimer &timer() const { return *watcher->findChild<QTimer *>(); }
    /// The events so far are taken and then the folder has been quiet for long enough.
    void letTimePass() const
    {
        do {
            timer().stop();
            QCoreApplication::processEvents();
        } while (timer().isActive()); // there were events
        timer().start(0);
    }
    /// What is reported up to now, all in one.
    [[nodiscard]] Names nextReport()
    {
        const std::size_t before = reports.size();
        make(folder / "~last.txt");
        letTimePass();
        if (!QTest::qWaitFor([&] { return reports.size() > before; }) || reports.size() != before + 1)
            return { "not one report" };
        Names names = reports.back();
        std::erase(names, "~last.txt");
        return names;
    }
};

/// Keeps every thread busy, so that a listing waits until this is gone.
class BusyThreads {
public:
    BusyThreads()
    {
        QThreadPool *pool = QThreadPool::globalInstance();
        for (int thread = 0; thread < pool->maxThreadCount(); ++thread)
            pool->start([this] { m_release.acquire(); });
    }
    ~BusyThreads()
    {
        m_release.release(QThreadPool::globalInstance()->maxThreadCount());
        QThreadPool::globalInstance()->waitForDone();
        QCoreApplication::processEvents(); // what the listing found arrives
    }
    Q_DISABLE_COPY_MOVE(BusyThreads)

private:
    QSemaphore m_release;
};

void FolderWatcherTest::initTestCase()
{
    QVERIFY2(::geteuid() != 0, "nothing is refused to root: run this with setpriv, as ctest does");
}

void FolderWatcherTest::reports_data()
{
    QTest::addColumn<bool>("includeExisting");
    QTest::addColumn<Action>("before");
    QTest::addColumn<Action>("after");
    QTest::addColumn<Names>("files");
    const Action nothing = [](const Path &) {};
    const auto makes = [](const Names &names) -> Action {
        return [names](const Path &folder) {
            for (const std::string &name : names)
                make(folder / name);
        };
    };
    const auto row = [&](const char *slip, const Action &after, const Names &files) {
        QTest::newRow(slip) << false << nothing << after << files;
    };
    QTest::newRow("files from before") << false << makes({ "1.pdf", "2.pdf" }) << makes({ "3.pdf" })
                                       << Names { "3.pdf" };
    QTest::newRow("files from before, asked for")
        << true << makes({ "1.pdf", ".2.pdf", "3.mp4" }) << makes({ "4.pdf" }) << Names { "1.pdf", "4.pdf" };
    QTest::newRow("one from before, written to") << false << makes({ "a.txt" }) << makes({ "a.txt" }) << Names {};
    QTest::newRow("one from before, renamed") << false << makes({ "a.txt" }) << Action([](const Path &folder) {
        std::filesystem::rename(folder / "a.txt", folder / "b.txt");
    }) << Names { "b.txt" };
    QTest::newRow("names told apart by what they show")
        << false << makes({ "caf\xe8.txt", "caf\u00e9.txt" }) << makes({ "caf\xe9.txt", "cafe\u0301.txt" })
        << Names { "cafe\u0301.txt", "caf\xe9.txt" };
    row("order of the folder or of a dictionary", makes({ "b.pdf", "A.pdf", "a.pdf" }), { "A.pdf", "a.pdf", "b.pdf" });
    row("types that are not read", makes({ "notes.docx", "movie.mp4", "b", "c.txt~" }), { "notes.docx" });
    row("extension in capitals", makes({ "SCAN.PDF" }), { "SCAN.PDF" });
    row("hidden or below a subfolder",
        [](const Path &folder) {
            make(folder / ".a.txt");
            std::filesystem::create_directory(folder / "sub");
            make(folder / "sub" / "b.txt");
        },
        {});
    row("moved in",
        [](const Path &folder) {
            make(folder / "../elsewhere/a.txt");
            std::filesystem::rename(folder / "../elsewhere/a.txt", folder / "b.txt");
        },
        { "b.txt" });
    row("links that are not followed, and two to one file",
        [](const Path &folder) {
            make(folder / "../elsewhere/a.txt");
            std::filesystem::create_symlink("../elsewhere/a.txt", folder / "z.txt");
            std::filesystem::create_symlink("../elsewhere/a.txt", folder / "y.txt");
        },
        { "../elsewhere/a.txt" });
    row("link to a folder", [](const Path &folder) { std::filesystem::create_symlink("/", folder / "a.txt"); }, {});
    row("link to nothing", [](const Path &folder) { std::filesystem::create_symlink("b.txt", folder / "a.txt"); },
        { "a.txt" });
}

void FolderWatcherTest::reports()
{
    QFETCH(bool, includeExisting);
    QFETCH(Action, before);
    QFETCH(Action, after);
    Watched test;
    before(test.folder);
    std::filesystem::create_directory_symlink(test.folder, test.root / "link");
    QVERIFY(test.watcher->start(test.root / "link", includeExisting)); // whose own name appears in no path
    after(test.folder);
    QTEST(test.nextReport(), "files");
}

void FolderWatcherTest::reportsAPathOnce()
{
    Watched test;
    QVERIFY(test.watcher->start(test.folder, false));
    make(test.folder / "a.txt");
    QCOMPARE(test.nextReport(), Names { "a.txt" });
    std::filesystem::remove(test.folder / "a.txt");
    std::filesystem::remove(test.folder / "~last.txt");
    test.letTimePass();
    QTRY_VERIFY(!test.timer().isActive());
    make(test.folder / "a.txt");
    make(test.folder / "~last.txt");
    make(test.folder / "b.txt");
    test.letTimePass();
    QTRY_COMPARE(test.reports.size(), 2U);
    QCOMPARE(test.reports.back(), Names { "b.txt" });
}

void FolderWatcherTest::waitsUntilItIsQuiet_data()
{
    QTest::addColumn<bool>("isLoopBusy");
    QTest::newRow("one delay for all") << false;
    QTest::newRow("time is up before the loop comes to the event") << true;
}

void FolderWatcherTest::waitsUntilItIsQuiet()
{
    QFETCH(bool, isLoopBusy);
    Watched test;
    QVERIFY(test.watcher->start(test.folder, false));
    std::ofstream file(test.folder / "a.txt");
    QTRY_VERIFY(test.timer().isActive());
    QCOMPARE(test.timer().intervalAsDuration(), Watched::delay);
    for (int part = 0; part < 3; ++part) {
        test.timer().start(isLoopBusy ? 0ms : 2 * Watched::delay); // whoever starts it again brings its delay back
        file << "more" << std::flush;
        QTRY_COMPARE(test.timer().intervalAsDuration(), Watched::delay);
        QVERIFY(test.timer().isActive());
    }
    QThreadPool::globalInstance()->waitForDone();
    QCoreApplication::processEvents();
    QVERIFY(test.reports.empty());
    file.close();
    QCOMPARE(test.nextReport(), Names { "a.txt" });
}

void FolderWatcherTest::reportsALargeFolderAtOnce()
{
    Watched test;
    QVERIFY(test.watcher->start(test.folder, false));
    make(test.root / "a.txt");
    for (int i = 0; i < 6000; ++i) // links are much faster made than files
        std::filesystem::create_hard_link(test.root / "a.txt", test.folder / (std::to_string(i) + ".txt"));
    QCOMPARE(test.nextReport().size(), 6000U);
}

void FolderWatcherTest::missesNothingWhileTheFirstListingTakesItsTime()
{
    Watched test;
    make(test.folder / "old.txt");
    {
        const BusyThreads busy;
        QVERIFY(test.watcher->start(test.folder, false));
        make(test.folder / "new.txt");
        test.letTimePass();
        QTRY_VERIFY(!test.timer().isActive()); // the time for a scan has come and gone
        make(test.folder / "newer.txt"); // listed, though its event has not been taken
    }
    QCOMPARE(test.nextReport(), (Names { "new.txt", "newer.txt" }));
}

void FolderWatcherTest::reportsNothingOfAnOutdatedListing_data()
{
    QTest::addColumn<std::function<void(Watched &)>>("meanwhile");
    QTest::addColumn<Names>("later"); // "" where the watch is over
    const auto row = [](const char *slip, const std::function<void(Watched &)> &meanwhile, const Names &later) {
        QTest::newRow(slip) << meanwhile << later;
    };
    row("written to", [](Watched &test) { make(test.folder / "a.txt", "more"); }, { "a.txt" });
    row("written to, and time for a scan",
        [](Watched &test) {
            make(test.folder / "b.txt");
            test.letTimePass();
            QTRY_VERIFY(!test.timer().isActive());
            make(test.folder / "b.txt", "more");
        },
        { "a.txt", "b.txt" });
    row("paused", [](Watched &test) { test.watcher->setPaused(true); }, { "a.txt" });
    row("stopped", [](Watched &test) { test.watcher->stop(); }, { "" });
    row("another folder", [](Watched &test) { QVERIFY(test.watcher->start(test.root / "elsewhere", false)); }, { "" });
    row("destroyed", [](Watched &test) { test.watcher.reset(); }, { "" });
}

void FolderWatcherTest::reportsNothingOfAnOutdatedListing()
{
    QFETCH(std::function<void(Watched &)>, meanwhile);
    QFETCH(Names, later);
    Watched test;
    QVERIFY(test.watcher->start(test.folder, true));
    make(test.folder / "a.txt");
    {
        const BusyThreads busy;
        test.letTimePass();
        QTRY_VERIFY(!test.timer().isActive());
        meanwhile(test);
    }
    QVERIFY(test.reports.empty());
    if (later == Names { "" })
        return;
    test.watcher->setPaused(false);
    QCOMPARE(test.nextReport(), later);
}

void FolderWatcherTest::keepsWhatComesDuringAPauseForLater()
{
    Watched test;
    QVERIFY(test.watcher->start(test.folder, false));
    make(test.folder / "0.txt");
    QTRY_VERIFY(test.timer().isActive());
    test.watcher->setPaused(true);
    test.letTimePass(); // of the scan that was pending
    QTRY_VERIFY(!test.timer().isActive());
    for (int i = 1; i < 10; ++i)
        make(test.folder / (std::to_string(i) + ".txt"));
    QCoreApplication::processEvents();
    QVERIFY(!test.timer().isActive());
    QVERIFY(test.watcher->isPaused() && test.watcher->isWatching());

    test.watcher->setPaused(false);
    QCOMPARE(test.timer().intervalAsDuration(), Watched::delay);
    test.letTimePass();
    QTRY_COMPARE(test.reports.size(), 1U);
    QCOMPARE(test.reports.front().size(), 10U);
}

void FolderWatcherTest::forgetsEverythingWhenStopped()
{
    Watched test;
    QSignalSpy changes(test.watcher.get(), &FolderWatcher::isWatchingChanged);
    QVERIFY(test.watcher->start(test.folder, true));
    make(test.folder / "a.txt");
    QTRY_VERIFY(test.timer().isActive());
    test.watcher->setPaused(true);
    test.watcher->stop();
    QVERIFY(!test.timer().isActive());
    QVERIFY(!test.watcher->isPaused() && !test.watcher->isWatching());
    QCOMPARE(changes.count(), 2);
    test.watcher->setPaused(false);
    QVERIFY(!test.timer().isActive()); // there is nothing to scan
    make(test.folder / "b.txt");
    QVERIFY(test.watcher->start(test.folder, false));
    QCOMPARE(test.nextReport(), Names {});
}

void FolderWatcherTest::beginsAnewWithAnotherFolder()
{
    Watched test;
    make(test.root / "elsewhere" / "old.txt");
    QVERIFY(test.watcher->start(test.folder, false));
    make(test.folder / "a.txt");
    QCOMPARE(test.nextReport(), Names { "a.txt" });
    QVERIFY(test.watcher->start(test.root / "elsewhere", true));
    make(test.folder / "b.txt");
    test.letTimePass();
    QTRY_COMPARE(test.reports.size(), 2U);
    QCOMPARE(test.reports.back(), Names { "../elsewhere/old.txt" });
    QVERIFY(test.watcher->start(test.folder, true)); // what was known there is new again
    QCOMPARE(test.nextReport(), (Names { "a.txt", "b.txt" }));
}

void FolderWatcherTest::stopsWhenTheFolderIsLost_data()
{
    QTest::addColumn<Action>("action");
    QTest::newRow("deleted") << Action([](const Path &folder) { std::filesystem::remove_all(folder); });
    QTest::newRow("moved") << Action(
        [](const Path &folder) { std::filesystem::rename(folder, folder.parent_path() / "moved"); });
    QTest::newRow("deleted while somebody stands in it") << Action([](const Path &folder) {
        static const int standing = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
        QVERIFY(standing >= 0);
        make(folder / "a.txt");
        std::filesystem::remove_all(folder);
    });
}

void FolderWatcherTest::stopsWhenTheFolderIsLost()
{
    QFETCH(Action, action);
    Watched test;
    QVERIFY(test.watcher->start(test.folder, true));
    test.watcher->setPaused(false);
    action(test.folder);
    QCoreApplication::processEvents();
    if (test.watcher->isWatching())
        test.letTimePass();
    QTRY_COMPARE(test.lossCount, 1);
    QVERIFY(!test.watcher->isWatching());
    QVERIFY(test.reports.empty());
    std::filesystem::create_directories(test.folder);
    QVERIFY(test.watcher->start(test.folder, false));
    make(test.folder / "b.txt");
    QCOMPARE(test.nextReport(), Names { "b.txt" });
}

void FolderWatcherTest::refuses_data()
{
    QTest::addColumn<std::string>("name");
    QTest::addColumn<int>("code");
    QTest::newRow("nothing there") << std::string("gone") << ENOENT;
    QTest::newRow("a file") << std::string("file.txt") << ENOTDIR;
    QTest::newRow("a folder that may not be listed") << std::string("closed") << EACCES;
}

void FolderWatcherTest::refuses()
{
    QFETCH(std::string, name);
    QFETCH(int, code);
    Watched test;
    make(test.root / "file.txt");
    std::filesystem::create_directory(test.root / "closed");
    std::filesystem::permissions(test.root / "closed", std::filesystem::perms::none);
    QVERIFY(test.watcher->start(test.folder, true));
    const Result<void, SystemError> started = test.watcher->start(test.root / name, false);
    QVERIFY(!started);
    QCOMPARE(started.error().code, code);
    QVERIFY(!test.watcher->isWatching()); // nor is the folder before
    QVERIFY(!test.timer().isActive());
}

QTEST_GUILESS_MAIN(FolderWatcherTest)
#include "tst_FolderWatcher.moc"
