// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "watch/FolderWatcher.h"

#include <cstdlib>
#include <fcntl.h>
#include <fstream>
#include <functional>
#include <QSemaphore>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QThreadPool>

using namespace Varlo;
using namespace std::chrono_literals;
using Path = std::filesystem::path;
using Names = std::vector<std::string>;

class FolderWatcherTest : public QObject {
    Q_OBJECT
private slots:
    void initTestCase();
    void reports_data();
    void reports();
    void reportsAPathOnce();
    void startsTheDelayAgainWithEachEvent();
    void reportsAllAtOnceThoughTheQueueRanOver();
    void missesNothingWhileTheFirstListingTakesItsTime();
    void reportsNothingOfAnOutdatedListing_data();
    void reportsNothingOfAnOutdatedListing();
    void keepsWhatComesDuringAPauseForLater();
    void beginsAnewWithEachStart();
    void stopsWhenTheFolderIsLost_data();
    void stopsWhenTheFolderIsLost();
    void refuses_data();
    void refuses();
};

/// A watched folder, which is the working directory, beside another one. The watcher's time never passes unless it is
/// told to.
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
        std::filesystem::current_path(root);
        run("mkdir watched elsewhere");
        std::filesystem::current_path(folder);
        QObject::connect(watcher.get(), &FolderWatcher::newFilesFound, [this](const std::vector<Path> &files) {
            Names names;
            for (const Path &file : files)
                names.push_back(file.lexically_relative(folder).native());
            reports.push_back(names);
        });
        QObject::connect(watcher.get(), &FolderWatcher::folderLost, [this] { ++lossCount; });
    }
    ~Watched()
    {
        std::error_code ignored;
        std::filesystem::remove_all(folder, ignored); // QTemporaryDir leaves names that are not UTF-8
    }
    Q_DISABLE_COPY_MOVE(Watched)

    static void run(const QByteArray &command) { QCOMPARE(std::system(command.constData()), 0); }
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
        std::ofstream(folder / "~last.txt");
        letTimePass();
        if (!QTest::qWaitFor([&] { return reports.size() > before; }, 60'000) || reports.size() != before + 1)
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
    QTest::addColumn<QByteArray>("before"); // shell commands in the folder
    QTest::addColumn<QByteArray>("after");
    QTest::addColumn<Names>("files");
    const auto row = [](const char *slip, const char *before, const char *after, const Names &files) {
        QTest::newRow(slip) << false << QByteArray(before) << QByteArray(after) << files;
    };
    QTest::newRow("files from before, asked for")
        << true << QByteArray("touch 1.pdf .2.pdf 3.mp4") << QByteArray("touch 4.pdf") << Names { "1.pdf", "4.pdf" };
    row("files from before", "touch 1.pdf 2.pdf", "touch 3.pdf", { "3.pdf" });
    row("one from before, written to", "touch a.txt", "echo x > a.txt", {});
    row("one from before, renamed", "touch a.txt", "mv a.txt b.txt", { "b.txt" });
    row("names told apart by what they show", "touch $(printf 'caf\\350.txt caf\\303\\251.txt')",
        "touch $(printf 'caf\\351.txt cafe\\314\\201.txt')", { "cafe\u0301.txt", "caf\xe9.txt" });
    row("order of the folder or of a dictionary", ":", "touch b.pdf A.pdf a.pdf", { "A.pdf", "a.pdf", "b.pdf" });
    row("types that are not read", ":", "touch notes.docx movie.mp4 b c.txt~", { "notes.docx" });
    row("extension in capitals", ":", "touch SCAN.PDF", { "SCAN.PDF" });
    row("hidden or below a subfolder", ":", "touch .a.txt; mkdir sub; touch sub/b.txt", {});
    row("moved in", "touch ../elsewhere/a.txt", "mv ../elsewhere/a.txt b.txt", { "b.txt" });
    row("links that are not followed, and two to one file", "touch ../elsewhere/a.txt",
        "ln -s ../elsewhere/a.txt z.txt; ln -s z.txt y.txt", { "../elsewhere/a.txt" });
    row("link to a folder", ":", "ln -s / a.txt", {});
    row("link to nothing", ":", "ln -s b.txt a.txt", { "a.txt" });
}

void FolderWatcherTest::reports()
{
    QFETCH(bool, includeExisting);
    QFETCH(QByteArray, before);
    QFETCH(QByteArray, after);
    Watched test;
    test.run(before);
    test.run("ln -s watched ../link"); // whose own name appears in no path
    QVERIFY(test.watcher->start(test.root / "link", includeExisting));
    test.run(after);
    QTEST(test.nextReport(), "files");
}

void FolderWatcherTest::reportsAPathOnce()
{
    Watched test;
    QVERIFY(test.watcher->start(test.folder, false));
    test.run("touch a.txt");
    QCOMPARE(test.nextReport(), Names { "a.txt" });
    test.run("rm a.txt ./~last.txt");
    test.letTimePass();
    QTRY_VERIFY_WITH_TIMEOUT(!test.timer().isActive(), 60'000);
    test.run("touch a.txt ./~last.txt b.txt");
    test.letTimePass();
    QTRY_COMPARE_WITH_TIMEOUT(test.reports.size(), 2U, 60'000);
    QCOMPARE(test.reports.back(), Names { "b.txt" });
}

void FolderWatcherTest::startsTheDelayAgainWithEachEvent()
{
    Watched test;
    QVERIFY(test.watcher->start(test.folder, false));
    std::ofstream file(test.folder / "a.txt");
    for (int part = 0; part < 3; ++part) {
        QTRY_COMPARE_WITH_TIMEOUT(test.timer().intervalAsDuration(), Watched::delay, 60'000);
        QVERIFY(test.timer().isActive());
        test.timer().start(2 * Watched::delay); // whoever starts it again brings its own delay
        file << "more" << std::flush;
    }
}

void FolderWatcherTest::reportsAllAtOnceThoughTheQueueRanOver()
{
    constexpr std::size_t count = 20000; // a queue holds 16,384 events by default
    Watched test;
    QVERIFY(test.watcher->start(test.folder, false));
    test.run("touch ../a.txt");
    for (std::size_t i = 0; i < count; ++i) // links are made much faster than files
        std::filesystem::create_hard_link("../a.txt", std::to_string(i) + ".txt");
    QCOMPARE(test.nextReport().size(), count);
}

void FolderWatcherTest::missesNothingWhileTheFirstListingTakesItsTime()
{
    Watched test;
    test.run("touch old.txt");
    {
        const BusyThreads busy;
        QVERIFY(test.watcher->start(test.folder, false));
        test.run("touch new.txt");
        test.letTimePass();
        QTRY_VERIFY_WITH_TIMEOUT(!test.timer().isActive(), 60'000); // the time for a scan has come and gone
        test.run("touch newer.txt"); // listed, though its event has not been taken
    }
    QCOMPARE(test.nextReport(), (Names { "new.txt", "newer.txt" }));
}

void FolderWatcherTest::reportsNothingOfAnOutdatedListing_data()
{
    using Meanwhile = std::function<void(Watched &)>;
    QTest::addColumn<Meanwhile>("meanwhile");
    QTest::addColumn<bool>("goesOn");
    QTest::newRow("written to") << Meanwhile([](Watched &test) { test.run("echo x > a.txt"); }) << true;
    QTest::newRow("written to, and time for a scan") << Meanwhile([](Watched &test) {
        test.run("echo x > a.txt");
        test.letTimePass();
        QTRY_VERIFY_WITH_TIMEOUT(!test.timer().isActive(), 60'000);
        test.run("echo x > a.txt");
    }) << true;
    QTest::newRow("paused") << Meanwhile([](Watched &test) { test.watcher->setPaused(true); }) << true;
    QTest::newRow("another folder") << Meanwhile([](Watched &test) {
        QVERIFY(test.watcher->start(test.root / "elsewhere", false));
    }) << false;
    QTest::newRow("destroyed") << Meanwhile([](Watched &test) { test.watcher.reset(); }) << false;
}

void FolderWatcherTest::reportsNothingOfAnOutdatedListing()
{
    QFETCH(std::function<void(Watched &)>, meanwhile);
    QFETCH(bool, goesOn);
    Watched test;
    QVERIFY(test.watcher->start(test.folder, true));
    test.run("touch a.txt");
    {
        const BusyThreads busy;
        test.letTimePass();
        QTRY_VERIFY_WITH_TIMEOUT(!test.timer().isActive(), 60'000);
        meanwhile(test);
    }
    QVERIFY(test.reports.empty());
    if (!goesOn)
        return;
    test.watcher->setPaused(false);
    QCOMPARE(test.nextReport(), Names { "a.txt" });
}

void FolderWatcherTest::keepsWhatComesDuringAPauseForLater()
{
    Watched test;
    QVERIFY(test.watcher->start(test.folder, false));
    test.run("touch 0.txt");
    QTRY_VERIFY_WITH_TIMEOUT(test.timer().isActive(), 60'000);
    test.watcher->setPaused(true);
    test.letTimePass(); // of the scan that was pending
    QTRY_VERIFY_WITH_TIMEOUT(!test.timer().isActive(), 60'000);
    test.run("touch 1.txt 2.txt 3.txt");
    QCoreApplication::processEvents();
    QVERIFY(!test.timer().isActive());
    test.watcher->setPaused(false);
    QCOMPARE(test.timer().intervalAsDuration(), Watched::delay);
    test.letTimePass();
    QTRY_COMPARE_WITH_TIMEOUT(test.reports.size(), 1U, 60'000);
    QCOMPARE(test.reports.front(), (Names { "0.txt", "1.txt", "2.txt", "3.txt" }));
}

void FolderWatcherTest::beginsAnewWithEachStart()
{
    Watched test;
    QVERIFY(test.watcher->start(test.folder, false));
    test.run("touch a.txt ../elsewhere/old.txt");
    QCOMPARE(test.nextReport(), Names { "a.txt" });
    test.watcher->setPaused(true);
    QVERIFY(test.watcher->start(test.root / "elsewhere", true));
    QVERIFY(!test.watcher->isPaused());
    test.letTimePass();
    QTRY_COMPARE_WITH_TIMEOUT(test.reports.size(), 2U, 60'000);
    QCOMPARE(test.reports.back(), Names { "../elsewhere/old.txt" });
    QVERIFY(test.watcher->start(test.folder, true)); // what was known there is new again
    QCOMPARE(test.nextReport(), Names { "a.txt" });
    test.watcher->setPaused(true);
    test.watcher->stop();
    QVERIFY(!test.watcher->isPaused() && !test.watcher->isWatching() && !test.timer().isActive());
    test.watcher->setPaused(false);
    QVERIFY(!test.timer().isActive()); // there is nothing to scan
}

void FolderWatcherTest::stopsWhenTheFolderIsLost_data()
{
    QTest::addColumn<QByteArray>("command");
    QTest::newRow("deleted") << QByteArray("rm -r ../watched");
    QTest::newRow("moved") << QByteArray("mv ../watched ../moved");
    QTest::newRow("deleted while somebody stands in it") << QByteArray("touch a.txt; rm -r ../watched");
}

void FolderWatcherTest::stopsWhenTheFolderIsLost()
{
    QFETCH(QByteArray, command);
    Watched test;
    QVERIFY(test.watcher->start(test.folder, true));
    test.run(command);
    if (!QByteArray(QTest::currentDataTag()).contains("stands"))
        std::filesystem::current_path(test.root);
    QCoreApplication::processEvents();
    if (test.watcher->isWatching())
        test.letTimePass();
    QTRY_COMPARE_WITH_TIMEOUT(test.lossCount, 1, 60'000);
    QVERIFY(!test.watcher->isWatching() && test.reports.empty());
    std::filesystem::create_directories(test.folder);
    QVERIFY(test.watcher->start(test.folder, false));
    QCOMPARE(test.nextReport(), Names {});
}

void FolderWatcherTest::refuses_data()
{
    QTest::addColumn<Path>("path");
    QTest::addColumn<int>("code");
    QTest::newRow("nothing there") << Path("gone") << ENOENT;
    QTest::newRow("a file") << Path("file.txt") << ENOTDIR;
    QTest::newRow("a folder that may not be listed") << Path("../closed") << EACCES;
}

void FolderWatcherTest::refuses()
{
    QFETCH(Path, path);
    QFETCH(int, code);
    Watched test;
    test.run("touch file.txt; mkdir -m 0 ../closed");
    QVERIFY(test.watcher->start(test.folder, true));
    const Result<void, SystemError> started = test.watcher->start(path, false);
    QVERIFY(!started);
    QCOMPARE(started.error().code, code);
    QVERIFY(!test.watcher->isWatching() && !test.timer().isActive()); // nor is the folder before
}

QTEST_GUILESS_MAIN(FolderWatcherTest)
#include "tst_FolderWatcher.moc"
