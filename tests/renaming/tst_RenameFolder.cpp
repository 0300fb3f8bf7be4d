// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "renaming/RenameFolder.h"

#include "renaming/TestFolder.h"
#include <atomic>
#include <cstdio>
#include <fcntl.h>
#include <QtTest>
#include <sys/syscall.h>
#include <thread>
#include <unistd.h>

using namespace Varlo;

// The program's own definitions stand before the C library's, so that a file system without the call can be had here.
static std::atomic<int> flagError = 0;
static std::atomic<int> linkError = 0;
static std::atomic<int> unlinkError = 0;
static std::atomic<bool> isAnswerLost = false;

extern "C" int renameat2(int oldFolder, const char *from, int newFolder, const char *to, unsigned int flags) noexcept
{
    if (flagError != 0 && flags != 0) {
        errno = flagError;
        return -1;
    }
    const long answer = ::syscall(SYS_renameat2, oldFolder, from, newFolder, to, flags);
    if (isAnswerLost) {
        errno = EIO;
        return -1;
    }
    return static_cast<int>(answer);
}

extern "C" int linkat(int oldFolder, const char *from, int newFolder, const char *to, int flags) noexcept
{
    if (linkError != 0) {
        errno = linkError;
        return -1;
    }
    return static_cast<int>(::syscall(SYS_linkat, oldFolder, from, newFolder, to, flags));
}

extern "C" int unlinkat(int folder, const char *name, int flags) noexcept
{
    if (unlinkError != 0 && std::string_view(name) == "from") {
        errno = unlinkError;
        return -1;
    }
    return static_cast<int>(::syscall(SYS_unlinkat, folder, name, flags));
}

class RenameFolderTest : public QObject {
    Q_OBJECT
private slots:
    void init();
    void moves_data();
    void moves();
    void refusesTakenName_data() { routes(); }
    void refusesTakenName();
    void leavesReplacedFileAlone_data() { routes(); }
    void leavesReplacedFileAlone();
    void believesTheDiskOverALostAnswer();
    void takesSecondNameBack();
    void neverOverwritesInARace_data();
    void neverOverwritesInARace();
    void neverLosesASwappedFile();

private:
    static void routes();
    static void chooseRoute();
};

static Result<void, SystemError> ready() { return {}; }

void RenameFolderTest::init()
{
    flagError = 0;
    linkError = 0;
    unlinkError = 0;
    isAnswerLost = false;
}

void RenameFolderTest::routes()
{
    QTest::addColumn<int>("flag");
    QTest::addColumn<int>("link");
    QTest::newRow("by the flag") << 0 << 0;
    QTest::newRow("by a link, as on NFS") << EINVAL << 0;
    QTest::newRow("by a look, as on FAT over a bridge") << ENOSYS << EPERM;
}

void RenameFolderTest::chooseRoute()
{
    QFETCH(int, flag);
    QFETCH(int, link);
    flagError = flag;
    linkError = link;
}

void RenameFolderTest::moves_data() { routes(); }

void RenameFolderTest::moves()
{
    chooseRoute();
    const TestFolder folder;
    const auto path = folder.create("from");
    const ino_t inode = TestFolder::inode(path);
    const auto opened = RenameFolder::open(folder.path());
    QVERIFY(opened);
    const auto file = opened->find("from");
    QVERIFY(file);
    QVERIFY(opened->move({ "from", "to", *file }, ready));
    QCOMPARE(folder.names(), std::vector<std::string> { "to" });
    QCOMPARE(TestFolder::inode(folder / "to"), inode);
}

void RenameFolderTest::refusesTakenName()
{
    chooseRoute();
    const TestFolder folder;
    folder.create("from");
    std::filesystem::create_symlink("nowhere", folder / "to");
    const auto opened = RenameFolder::open(folder.path());
    const auto file = opened->find("from");
    const auto moved = opened->move({ "from", "to", *file }, ready);
    QVERIFY(!moved && moved.error() == RenameFailure(SystemError { EEXIST }));
    QCOMPARE(std::filesystem::read_symlink(folder / "to"), "nowhere");
    QCOMPARE(TestFolder::content(folder / "from"), "from");
}

void RenameFolderTest::leavesReplacedFileAlone()
{
    chooseRoute();
    const TestFolder folder;
    folder.create("from");
    const auto opened = RenameFolder::open(folder.path());
    const auto file = opened->find("from");
    folder.create("new", "saved anew");
    std::filesystem::rename(folder / "new", folder / "from");
    const auto moved = opened->move({ "from", "to", *file }, ready);
    QVERIFY(!moved && moved.error() == RenameFailure(FileChanged {}));
    QCOMPARE(folder.names(), std::vector<std::string> { "from" });
}

void RenameFolderTest::believesTheDiskOverALostAnswer()
{
    const TestFolder folder;
    folder.create("from");
    const auto opened = RenameFolder::open(folder.path());
    const auto file = opened->find("from");
    isAnswerLost = true;
    QVERIFY(opened->move({ "from", "to", *file }, ready));
    QCOMPARE(folder.names(), std::vector<std::string> { "to" });
}

void RenameFolderTest::takesSecondNameBack()
{
    const TestFolder folder;
    folder.create("from");
    const auto opened = RenameFolder::open(folder.path());
    const auto file = opened->find("from");
    flagError = EINVAL;
    unlinkError = EROFS;
    const auto moved = opened->move({ "from", "to", *file }, ready);
    QVERIFY(!moved && moved.error() == RenameFailure(SystemError { EROFS }));
    QCOMPARE(folder.names(), std::vector<std::string> { "from" });
    const auto unprepared = opened->move(
        { "from", "to", *file }, []() -> Result<void, SystemError> { return tl::unexpected(SystemError { ENOSPC }); });
    QVERIFY(!unprepared && unprepared.error() == RenameFailure(SystemError { ENOSPC }));
    QCOMPARE(folder.names(), std::vector<std::string> { "from" });
}

/// Runs `disturb` at the same moment as the test's own part, once a round.
template <typename Disturb> class Rival {
public:
    explicit Rival(Disturb disturb)
        : m_thread([this, disturb] {
            for (int round = 1; waitFor(m_round, round); ++round) {
                disturb(round);
                tell(m_done, round);
            }
        })
    {
    }
    ~Rival()
    {
        tell(m_round, -1);
        m_thread.join();
    }
    /// Every third round the rival is surely first, every third surely last; else the two meet as they may.
    template <typename Move> auto meet(int round, Move move)
    {
        const int order = round % 3;
        if (order != 1)
            tell(m_round, round);
        if (order == 0)
            waitFor(m_done, round);
        auto outcome = move();
        tell(m_round, round);
        waitFor(m_done, round);
        return outcome;
    }

private:
    static bool waitFor(const std::atomic<int> &value, int round)
    {
        int now = value;
        for (; now >= 0 && now < round; now = value)
            value.wait(now); // asleep: a busy machine would give a spinning thread its whole time slice
        return now >= 0;
    }
    static void tell(std::atomic<int> &value, int round)
    {
        value = round;
        value.notify_all();
    }
    std::atomic<int> m_round = 0;
    std::atomic<int> m_done = 0;
    std::thread m_thread;
};

static constexpr int rounds = 10'000;

static void pauseFor(int steps)
{
    std::atomic<int> step = 0;
    while (step < steps)
        ++step;
}

void RenameFolderTest::neverOverwritesInARace_data()
{
    QTest::addColumn<int>("flag");
    QTest::addColumn<int>("link");
    QTest::newRow("by the flag") << 0 << 0;
    QTest::newRow("by a link") << EINVAL << 0;
}

void RenameFolderTest::neverOverwritesInARace()
{
    chooseRoute();
    const TestFolder folder;
    const auto opened = RenameFolder::open(folder.path());
    const std::string target = folder / "to";
    std::atomic<bool> hasCreated = false;
    Rival rival([&](int round) {
        pauseFor(round * 7919 % 1000);
        const int file = ::open(target.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600);
        hasCreated = file >= 0 && ::write(file, "theirs", 6) == 6;
        if (file >= 0)
            ::close(file);
    });
    for (int round = 1; round <= rounds; ++round) {
        folder.create("from", "ours");
        const auto file = opened->find("from");
        const bool hasMoved = rival.meet(round,
                                       [&] {
                                           return opened->move({ "from", "to", *file }, ready);
                                       })
                                  .has_value();
        QVERIFY(hasMoved != hasCreated);
        QCOMPARE(TestFolder::content(target), hasMoved ? "ours" : "theirs");
        QCOMPARE(std::filesystem::exists(folder / "from"), !hasMoved);
        std::filesystem::remove(target);
        std::filesystem::remove(folder / "from");
    }
}

void RenameFolderTest::neverLosesASwappedFile()
{
    const TestFolder folder;
    const auto opened = RenameFolder::open(folder.path());
    Rival rival([&](int round) {
        pauseFor(round * 7919 % 1000);
        std::error_code error;
        std::filesystem::rename(folder / "new", folder / "from", error);
    });
    for (int round = 1; round <= rounds; ++round) {
        folder.create("from", "ours");
        folder.create("new", "saved anew");
        const auto file = opened->find("from");
        const auto moved = rival.meet(round, [&] { return opened->move({ "from", "to", *file }, ready); });
        QCOMPARE(TestFolder::content(folder / "from"), "saved anew");
        QCOMPARE(std::filesystem::exists(folder / "to"), moved.has_value());
        QVERIFY(!moved || TestFolder::content(folder / "to") == "ours");
        std::filesystem::remove(folder / "from");
        std::filesystem::remove(folder / "to");
    }
}

QTEST_GUILESS_MAIN(RenameFolderTest)
#include "tst_RenameFolder.moc"
