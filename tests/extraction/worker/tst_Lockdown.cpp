// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "extraction/worker/Lockdown.h"

#include <array>
#include <csignal>
#include <dirent.h>
#include <dlfcn.h>
#include <fcntl.h>
#include <functional>
#include <linux/landlock.h>
#include <netinet/in.h>
#include <pthread.h>
#include <QTemporaryDir>
#include <QTest>
#include <sys/ioctl.h>
#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/un.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace Varlo;

// Whether it could be done.
using Act = std::function<bool()>;
Q_DECLARE_METATYPE(Act)

enum class End { Done, Refused, Killed };
enum Layer { Limits = 1, Landlock = 2, Seccomp = 4 };

class LockdownTest : public QObject {
    Q_OBJECT
private slots:
    void initTestCase();
    void refuses_data();
    void refuses();
    void allows_data();
    void allows();
    void allowsThreadsOnly();
    void hidesFromOthers();

private:
    [[nodiscard]] std::string path(const char *name) const { return m_folder.path().toStdString() + '/' + name; }

    QTemporaryDir m_folder; // stands for the user's home
    FileDescriptor m_file; // open for writing from before
    FileDescriptor m_answers, m_othersEnd;
    FileDescriptor m_listener, m_unixListener;
    sockaddr_in m_address {};
    sockaddr_un m_unixAddress {};
    socklen_t m_unixAddressSize = 0;
};

// From before the lockdown, and each used once.
static int tcpSocket = -1;
static int unixSocket = -1;

/// What comes of the act in a process that these layers lock in.
static End end(const Act &act, int layers, Lockdown::Threads threads = Lockdown::Threads::None)
{
    const Lockdown lockdown;
    const pid_t child = ::fork();
    if (child == 0) {
        tcpSocket = ::socket(AF_INET, SOCK_STREAM, 0);
        unixSocket = ::socket(AF_UNIX, SOCK_STREAM, 0);
        ::prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0);
        if ((layers & Limits) != 0)
            Lockdown::limitResources(threads);
        bool isOn = true;
        if ((layers & Landlock) != 0)
            isOn = lockdown.keepFromFiles() > 0;
        if ((layers & Seccomp) != 0)
            isOn = lockdown.filterCalls(threads) && isOn;
        if (!isOn)
            ::_exit(2);
        ::_exit(act() ? 0 : 1);
    }
    int status = 0;
    if (::waitpid(child, &status, 0) != child)
        return End::Killed;
    if (WIFSIGNALED(status))
        return End::Killed;
    if (WEXITSTATUS(status) == 2)
        qFatal("a layer could not be put on");
    return WEXITSTATUS(status) == 0 ? End::Done : End::Refused;
}

static bool opens(const std::string &path, int flags)
{
    return FileDescriptor(::open(path.c_str(), flags, 0600)).isOpen();
}

static bool startsThread()
{
    pthread_t thread {};
    return ::pthread_create(
               &thread, nullptr, [](void *) -> void * { return nullptr; }, nullptr)
        == 0
        && ::pthread_join(thread, nullptr) == 0;
}

/// Whatever the kernel says to it: it was asked.
static Act call(long number)
{
    return [number] {
        ::syscall(number, 0, 0, 0, 0, 0, 0);
        return true;
    };
}

void LockdownTest::initTestCase()
{
    QVERIFY2(::geteuid() != 0, "to be run without the administrator's rights, which some limits do not bind");
    m_file = FileDescriptor(::open(path("secret.txt").c_str(), O_RDWR | O_CREAT, 0600));
    QVERIFY(::write(m_file.get(), "secret", 6) == 6 && ::mkdir(path("folder").c_str(), 0700) == 0);

    std::array<int, 2> ends {};
    QVERIFY(::socketpair(AF_UNIX, SOCK_SEQPACKET, 0, ends.data()) == 0);
    m_answers = FileDescriptor(ends[0]);
    m_othersEnd = FileDescriptor(ends[1]);

    m_address.sin_family = AF_INET;
    m_address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t size = sizeof m_address;
    auto *const address = reinterpret_cast<sockaddr *>(&m_address);
    m_listener = FileDescriptor(::socket(AF_INET, SOCK_STREAM, 0));
    QVERIFY(::bind(m_listener.get(), address, size) == 0 && ::listen(m_listener.get(), 50) == 0
        && ::getsockname(m_listener.get(), address, &size) == 0);

    m_unixAddress.sun_family = AF_UNIX; // with no name given the system finds an abstract one
    m_unixListener = FileDescriptor(::socket(AF_UNIX, SOCK_STREAM, 0));
    auto *const unixAddress = reinterpret_cast<sockaddr *>(&m_unixAddress);
    m_unixAddressSize = sizeof m_unixAddress;
    QVERIFY(::bind(m_unixListener.get(), unixAddress, sizeof m_unixAddress.sun_family) == 0
        && ::listen(m_unixListener.get(), 50) == 0
        && ::getsockname(m_unixListener.get(), unixAddress, &m_unixAddressSize) == 0);
    std::signal(SIGUSR1, SIG_IGN);
}

// Each act works without the layers, each layer that is named refuses it by itself, and all of them together.
void LockdownTest::refuses_data()
{
    QTest::addColumn<Act>("act");
    QTest::addColumn<int>("refusing");
    QTest::addColumn<int>("killing");
    QTest::addColumn<int>("landlockVersion"); // from which Landlock refuses it
    const auto row = [](const char *name, int refusing, const Act &act, int landlockVersion = 1) {
        QTest::newRow(name) << act << refusing << 0 << landlockVersion;
    };
    const auto seccompRow = [&](const char *name, const Act &act) { row(name, Seccomp, act); };
    const auto attackRow
        = [&](const char *name, const Act &act) { QTest::newRow(name) << act << 0 << int(Seccomp) << 1; };

    row("read a file of the user's", Landlock, [this] { return opens(path("secret.txt"), O_RDONLY); });
    row("read a system file", Landlock, [] { return opens("/etc/passwd", O_RDONLY); });
    row("read what processes show", Landlock, [] { return opens("/proc/self/maps", O_RDONLY); });
    row("list a folder", Landlock, [this] { return ::opendir(m_folder.path().toUtf8().constData()) != nullptr; });
    row("reopen its own file", Landlock,
        [this] { return opens("/proc/self/fd/" + std::to_string(m_file.get()), O_RDONLY); });
    row("create a file", Landlock | Seccomp, [this] { return opens(path("new"), O_WRONLY | O_CREAT); });
    row("create a file to read", Landlock | Seccomp, [this] { return opens(path("new2"), O_RDONLY | O_CREAT); });
    row("create a file without a name", Landlock | Seccomp,
        [this] { return opens(m_folder.path().toStdString(), O_RDWR | O_TMPFILE); });
    row("write a file", Landlock | Seccomp, [this] { return opens(path("secret.txt"), O_WRONLY); });
    row("read and write a file", Landlock | Seccomp, [this] { return opens(path("secret.txt"), O_RDWR); });
    row("empty a file by opening it", Landlock | Seccomp,
        [this] { return opens(path("secret.txt"), O_RDONLY | O_TRUNC); });
    row(
        "cut a file", Landlock | Seccomp, [this] { return ::truncate(path("secret.txt").c_str(), 6) == 0; }, 3);
    seccompRow("cut an open file", [this] { return ::ftruncate(m_file.get(), 6) == 0; });
    QTest::newRow("write an open file") << Act([this] { return ::write(m_file.get(), "secret", 6) == 6; }) << 0
                                        << int(Limits) << 1;
    row("make a folder", Landlock | Seccomp,
        [this] { return ::mkdir(path("made").c_str(), 0700) == 0 && ::rmdir(path("made").c_str()) == 0; });
    row("make a link", Landlock | Seccomp,
        [this] { return ::symlink("x", path("link").c_str()) == 0 && ::unlink(path("link").c_str()) == 0; });
    row("make a pipe with a name", Landlock | Seccomp,
        [this] { return ::mkfifo(path("pipe").c_str(), 0600) == 0 && ::unlink(path("pipe").c_str()) == 0; });
    row("rename a file", Landlock | Seccomp, [this] {
        return ::rename(path("folder").c_str(), path("folder").c_str()) == 0
            && ::rename(path("secret.txt").c_str(), path("moved").c_str()) == 0
            && ::rename(path("moved").c_str(), path("secret.txt").c_str()) == 0;
    });
    seccompRow("change a mode", [this] { return ::chmod(path("secret.txt").c_str(), 0600) == 0; });
    seccompRow("change an open file's mode", [this] { return ::fchmod(m_file.get(), 0600) == 0; });
    seccompRow("change times", [this] { return ::utimensat(AT_FDCWD, path("secret.txt").c_str(), nullptr, 0) == 0; });
    seccompRow("lock a file", [this] {
        struct flock lock { };
        lock.l_type = F_RDLCK;
        return ::fcntl(m_file.get(), F_SETLK, &lock) == 0;
    });
    seccompRow("file in memory", [] { return FileDescriptor(::memfd_create("x", 0)).isOpen(); });
    row("too many descriptors", Limits, [] {
        int made = 0;
        while (made < 100 && ::dup(STDERR_FILENO) >= 0)
            ++made;
        return made == 100;
    });

    seccompRow("TCP socket", [] { return FileDescriptor(::socket(AF_INET, SOCK_STREAM, 0)).isOpen(); });
    seccompRow("UDP socket", [] { return FileDescriptor(::socket(AF_INET6, SOCK_DGRAM, 0)).isOpen(); });
    seccompRow("local socket", [] { return FileDescriptor(::socket(AF_UNIX, SOCK_STREAM, 0)).isOpen(); });
    row(
        "connect a socket", Landlock | Seccomp,
        [this] { return ::connect(tcpSocket, reinterpret_cast<sockaddr *>(&m_address), sizeof m_address) == 0; }, 4);
    row(
        "bind a socket", Landlock | Seccomp,
        [this] {
            sockaddr_in anyPort = m_address;
            anyPort.sin_port = 0;
            return ::bind(tcpSocket, reinterpret_cast<sockaddr *>(&anyPort), sizeof anyPort) == 0;
        },
        4);
    row(
        "connect a local socket", Landlock | Seccomp,
        [this] { return ::connect(unixSocket, reinterpret_cast<sockaddr *>(&m_unixAddress), m_unixAddressSize) == 0; },
        6);

    QTest::newRow("run a program") << Act([] {
        const std::array<char *, 2> arguments { const_cast<char *>("true"), nullptr };
        ::execv("/usr/bin/true", arguments.data());
        return false;
    }) << int(Landlock) << int(Seccomp)
                                   << 1;
    row("fork", Limits | Seccomp, [] {
        const pid_t child = ::fork();
        if (child == 0)
            ::_exit(0);
        return child > 0 && ::waitpid(child, nullptr, 0) == child;
    });
    row("fork, the old way", Limits | Seccomp, [] {
        const long child = ::syscall(SYS_clone, SIGCHLD, 0, 0, 0, 0);
        if (child == 0)
            ::_exit(0);
        return child > 0 && ::waitpid(static_cast<pid_t>(child), nullptr, 0) == child;
    });
    row("start a thread", Limits | Seccomp, startsThread);
    row(
        "signal another process", Landlock | Seccomp, [] { return ::kill(::getppid(), SIGUSR1) == 0; }, 6);
    row(
        "signal another process's thread", Landlock | Seccomp,
        [] { return ::syscall(SYS_tgkill, ::getppid(), ::getppid(), SIGUSR1) == 0; }, 6);
    seccompRow("limit another process", [] {
        rlimit now {};
        return ::prlimit(::getppid(), RLIMIT_CORE, nullptr, &now) == 0;
    });
    seccompRow("lower a limit", [] {
        rlimit now {};
        return ::getrlimit(RLIMIT_CPU, &now) == 0 && ::setrlimit(RLIMIT_CPU, &now) == 0;
    });
#ifndef __SANITIZE_ADDRESS__
    row("more than a GiB", Limits, [] {
        return ::mmap(nullptr, 1 << 30, PROT_READ, MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0) != MAP_FAILED;
    });
#endif
    seccompRow("memory to write and run",
        [] { return ::mmap(nullptr, 4096, PROT_WRITE | PROT_EXEC, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0) != MAP_FAILED; });
    seccompRow("run what was written", [] {
        void *const page = ::mmap(nullptr, 4096, PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
        return ::mprotect(page, 4096, PROT_READ | PROT_EXEC) == 0;
    });
    seccompRow("act on a device", [] {
        int count = 0;
        std::array<int, 2> ends {};
        return ::pipe(ends.data()) == 0 && ::ioctl(ends[0], FIONREAD, &count) == 0;
    });

    attackRow("trace", call(SYS_ptrace));
    attackRow("read another's memory", call(SYS_process_vm_readv));
    attackRow("write another's memory", call(SYS_process_vm_writev));
    attackRow("ring of calls", call(SYS_io_uring_setup));
    attackRow("program for the kernel", call(SYS_bpf));
    attackRow("mount", call(SYS_mount));
    attackRow("unmount", call(SYS_umount2));
    attackRow("namespace", call(SYS_unshare));
    attackRow("another's namespace", call(SYS_setns));
    attackRow("keys", call(SYS_keyctl));
    attackRow("page faults", call(SYS_userfaultfd));
    attackRow("counters", call(SYS_perf_event_open));
}

void LockdownTest::refuses()
{
    QFETCH(Act, act);
    QFETCH(int, refusing);
    QFETCH(int, killing);
    QFETCH(int, landlockVersion);
    QCOMPARE(end(act, 0), End::Done);
    const long version = ::syscall(SYS_landlock_create_ruleset, nullptr, 0, LANDLOCK_CREATE_RULESET_VERSION);
    if (version < landlockVersion)
        refusing &= ~Landlock;
    for (const Layer layer : { Limits, Landlock, Seccomp }) {
        if ((refusing & layer) != 0)
            QCOMPARE(end(act, layer), End::Refused);
        if ((killing & layer) != 0)
            QCOMPARE(end(act, layer), End::Killed);
    }
    QVERIFY((refusing | killing) == 0 || end(act, Limits | (version > 0 ? Landlock : 0) | Seccomp) != End::Done);
}

// What readers do, under every layer.
void LockdownTest::allows_data()
{
    QTest::addColumn<Act>("act");
    const auto row = [](const char *name, const Act &act) { QTest::newRow(name) << act; };
    row("read and map its file", [this] {
        std::array<char, 6> bytes {};
        return ::pread(m_file.get(), bytes.data(), bytes.size(), 0) == 6
            && ::mmap(nullptr, 6, PROT_READ, MAP_PRIVATE, m_file.get(), 0) != MAP_FAILED;
    });
    row("list and read fonts and the like",
        [] { return ::opendir("/usr/share") && opens("/etc/ld.so.cache", O_RDONLY); });
    row("load a library", [] { return ::dlopen("libresolv.so.2", RTLD_NOW) != nullptr; });
    row("memory", [] { return std::vector<char>(100 << 20, 1).back() == 1; });
    row("answer", [this] { return ::write(m_answers.get(), "answer", 6) == 6; });
    row("tell the time and wait", [] { return ::time(nullptr) > 0 && ::usleep(1) == 0; });
}

void LockdownTest::allows()
{
    QFETCH(Act, act);
    QCOMPARE(end(act, Limits | Landlock | Seccomp), End::Done);
    QCOMPARE(end(act, Limits | Landlock | Seccomp, Lockdown::Threads::Allowed), End::Done);
}

void LockdownTest::allowsThreadsOnly()
{
    QCOMPARE(end(startsThread, Limits | Landlock | Seccomp, Lockdown::Threads::Allowed), End::Done);
    QCOMPARE(end([] { return ::fork() >= 0; }, Seccomp, Lockdown::Threads::Allowed), End::Refused);
}

void LockdownTest::hidesFromOthers()
{
    const pid_t starter = ::getpid();
    const auto isHidden = [starter] {
        Lockdown::hideFromOthers(starter);
        int deathSignal = 0;
#ifndef __SANITIZE_ADDRESS__
        if (::prctl(PR_GET_DUMPABLE) != 0)
            return false;
#endif
        return ::prctl(PR_GET_PDEATHSIG, &deathSignal) == 0 && deathSignal == SIGKILL;
    };
    QCOMPARE(end(isHidden, 0), End::Done);
    const auto outlivesItsStarter = [starter] {
        Lockdown::hideFromOthers(starter + 1);
        return true;
    };
    QCOMPARE(end(outlivesItsStarter, 0), End::Refused);
}

QTEST_GUILESS_MAIN(LockdownTest)
#include "tst_Lockdown.moc"
