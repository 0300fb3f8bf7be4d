// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/FolderEvents.h"

#include <fcntl.h>
#include <fstream>
#include <functional>
#include <QScopeGuard>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <sched.h>
#include <sys/mount.h>
#include <sys/stat.h>

using namespace Varlo;
using Path = std::filesystem::path;
using Names = std::vector<std::string>;
using Action = std::function<void(const Path &folder, int openFile)>;

class FolderEventsTest : public QObject {
    Q_OBJECT
private slots:
    void notices_data();
    void notices();
    void keepsQuietAboutDeletedFiles();
    void tellsThatTheFolderIsLost_data();
    void tellsThatTheFolderIsLost();
    void tellsOfAnUnmountedFolder();
    void goesOnBehindAQueueThatRanOver();
};

static void make(const Path &file) { std::ofstream(file) << "x"; }

/// Leaves the number in use, for whoever closes it at the end.
static void closeEarly(int openFile)
{
    const int null = ::open("/dev/null", O_RDONLY | O_CLOEXEC);
    ::dup2(null, openFile);
    ::close(null);
}

/// Until the queue is empty, which it must be once and for all: nobody writes to the folder meanwhile.
static FolderEvents::Slice readAll(FolderEvents &events)
{
    FolderEvents::Slice all;
    for (FolderEvents::Slice slice = events.read(); !slice.isEmpty; slice = events.read()) {
        all.isEmpty = false;
        all.isFolderLost = all.isFolderLost || slice.isFolderLost;
        all.arrived.insert(all.arrived.end(), slice.arrived.begin(), slice.arrived.end());
    }
    return all;
}

struct Watched {
    QTemporaryDir temporary;
    Path folder = Path(temporary.path().toStdString()) / "watched";
    QObject owner;
    FolderEvents *events = nullptr;
    int openFile = -1; ///< "open.txt", for writing

    Watched()
    {
        std::filesystem::create_directory(folder);
        make(folder / "a.txt");
        make(folder.parent_path() / "outside.txt");
        openFile = ::open((folder / "open.txt").c_str(), O_WRONLY | O_CREAT | O_CLOEXEC, 0600);
        events = FolderEvents::open(folder, &owner).value_or(nullptr);
    }
    ~Watched()
    {
        ::close(openFile);
        std::filesystem::remove_all(folder); // QTemporaryDir leaves names that are not UTF-8
    }
};

void FolderEventsTest::notices_data()
{
    QTest::addColumn<Action>("action");
    QTest::addColumn<Names>("arrived");
    const auto row = [](const char *kind, const Action &action, const Names &arrived = {}) {
        QTest::newRow(kind) << action << arrived;
    };
    row("made", [](const Path &folder, int) { std::filesystem::create_hard_link(folder / "a.txt", folder / "b.txt"); },
        { "b.txt" });
    row("moved in",
        [](const Path &folder, int) {
            std::filesystem::rename(folder.parent_path() / "outside.txt", folder / "caf\xe9.txt");
        },
        { "caf\xe9.txt" });
    row("moved out",
        [](const Path &folder, int) { std::filesystem::rename(folder / "a.txt", folder.parent_path() / "a.txt"); });
    row("written to", [](const Path &, int openFile) { QCOMPARE(::write(openFile, "x", 1), 1); });
    row("closed behind writing", [](const Path &, int openFile) { closeEarly(openFile); });
    row("deleted", [](const Path &folder, int) { std::filesystem::remove(folder / "a.txt"); });
    row("rights changed", [](const Path &folder, int) { QCOMPARE(::chmod((folder / "a.txt").c_str(), 0640), 0); });
}

void FolderEventsTest::notices()
{
    QFETCH(Action, action);
    const Watched test;
    QVERIFY(test.events);
    QVERIFY(test.events->read().isEmpty);
    QSignalSpy pending(test.events, &FolderEvents::pending);
    action(test.folder, test.openFile);
    QVERIFY(!pending.isEmpty() || pending.wait());
    const FolderEvents::Slice slice = readAll(*test.events);
    QVERIFY(!slice.isEmpty);
    QVERIFY(!slice.isFolderLost);
    QTEST(slice.arrived, "arrived");
}

void FolderEventsTest::keepsQuietAboutDeletedFiles()
{
    const Watched test;
    std::filesystem::remove(test.folder / "open.txt");
    readAll(*test.events);
    QCOMPARE(::write(test.openFile, "x", 1), 1);
    QVERIFY(test.events->read().isEmpty);
}

void FolderEventsTest::tellsThatTheFolderIsLost_data()
{
    QTest::addColumn<Action>("action");
    QTest::newRow("deleted") << Action([](const Path &folder, int openFile) {
        closeEarly(openFile); // an open file keeps its folder, and the event back
        std::filesystem::remove_all(folder);
    });
    QTest::newRow("moved") << Action(
        [](const Path &folder, int) { std::filesystem::rename(folder, folder.parent_path() / "elsewhere"); });
}

void FolderEventsTest::tellsThatTheFolderIsLost()
{
    QFETCH(Action, action);
    const Watched test;
    action(test.folder, test.openFile);
    QVERIFY(readAll(*test.events).isFolderLost);
}

void FolderEventsTest::tellsOfAnUnmountedFolder()
{
    if (::unshare(CLONE_NEWNS) != 0 || ::mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0)
        QSKIP("No private mount namespace can be had here, so there is nothing to unmount.");
    const Watched test;
    const Path disk = test.folder / "disk";
    std::filesystem::create_directory(disk);
    QCOMPARE(::mount("none", disk.c_str(), "tmpfs", 0, "size=64k"), 0);
    auto unmount = qScopeGuard([&] { ::umount2(disk.c_str(), MNT_DETACH); });
    QObject owner;
    const auto events = FolderEvents::open(disk, &owner);
    QVERIFY(events);
    QCOMPARE(::umount(disk.c_str()), 0); // would be refused if the watch kept the file system busy
    unmount.dismiss();
    QVERIFY(readAll(**events).isFolderLost);
}

void FolderEventsTest::goesOnBehindAQueueThatRanOver()
{
    int longestQueue = 0;
    std::ifstream("/proc/sys/fs/inotify/max_queued_events") >> longestQueue;
    QVERIFY(longestQueue > 0);
    const Watched test;
    for (int i = 0; i <= longestQueue; i += 2) { // two events each
        std::filesystem::create_hard_link(test.folder / "a.txt", test.folder / "b.txt");
        std::filesystem::remove(test.folder / "b.txt");
    }
    const FolderEvents::Slice slice = readAll(*test.events);
    QVERIFY(!slice.isEmpty);
    QVERIFY(!slice.isFolderLost);
    make(test.folder / "late.txt");
    QCOMPARE(readAll(*test.events).arrived, Names { "late.txt" });
}

QTEST_GUILESS_MAIN(FolderEventsTest)
#include "tst_FolderEvents.moc"
