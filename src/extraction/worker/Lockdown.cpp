// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "extraction/worker/Lockdown.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <linux/landlock.h>
#include <linux/seccomp.h>
#include <memory>
#include <sched.h>
#include <seccomp.h>
#include <span>
#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace Varlo {

SandboxLayers Lockdown::lockIn(Threads threads, pid_t starter) const
{
    limitResources(threads);
    hideFromOthers(starter);
    ::prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0); // no program would gain rights; the next two layers ask for it
    SandboxLayers layers;
    layers.landlockVersion = keepFromFiles();
    layers.filtersCalls = filterCalls(threads);
    return layers;
}

// Limits

static void limit(decltype(RLIMIT_AS) resource, rlim_t most)
{
    const rlimit both { most, most };
    ::setrlimit(resource, &both);
}

void Lockdown::limitResources(Threads threads)
{
#ifndef __SANITIZE_ADDRESS__ // which reserves terabytes of addresses
    limit(RLIMIT_AS, rlim_t { 1 } << 30);
#endif
    limit(RLIMIT_CPU, 600); // seconds; only a backstop, as the parent's clock ends a worker long before
    limit(RLIMIT_FSIZE, 0);
    limit(RLIMIT_NOFILE, 64);
    limit(RLIMIT_CORE, 0);
    // It counts every thread of the user, so that it can be nothing between none and all.
    if (threads == Threads::None)
        limit(RLIMIT_NPROC, 0);
}

void Lockdown::hideFromOthers(pid_t starter)
{
#ifndef __SANITIZE_ADDRESS__ // whose reports look into the process
    ::prctl(PR_SET_DUMPABLE, 0);
#endif
    ::prctl(PR_SET_PDEATHSIG, SIGKILL);
    if (::getppid() != starter) // it died before that call
        ::_exit(1);
}

// Landlock

namespace {

// Debian 12's header ends with the second version, some of the kernels that run below it do not.
constexpr __u64 accessTruncate = 1ULL << 14; // version 3
constexpr __u64 accessIoctlOfDevice = 1ULL << 15; // version 5
constexpr __u64 netBindAndConnect = 3; // version 4: TCP
constexpr __u64 scopeSocketsAndSignals = 3; // version 6: abstract sockets, signals

struct LandlockRules {
    __u64 files = 0;
    __u64 net = 0;
    __u64 scope = 0;
};

constexpr __u64 readFile = LANDLOCK_ACCESS_FS_READ_FILE;
constexpr __u64 readFolder = LANDLOCK_ACCESS_FS_READ_FILE | LANDLOCK_ACCESS_FS_READ_DIR;

// Libraries that are loaded late, fonts, tables for text in PDF files, models, time zones.
constexpr std::array readablePaths { "/usr/lib", "/lib", "/lib64", "/usr/share", "/usr/local/share/fonts", "/etc/fonts",
    "/var/cache/fontconfig", "/etc/ld.so.cache" };
// The same inside a Flatpak, where /app is the application's own prefix and the fonts of the system come from outside
// (https://docs.flatpak.org/en/latest/sandbox-permissions.html). Elsewhere /app may be anything.
constexpr std::array readableFlatpakPaths { "/app/lib", "/app/share", "/run/host/fonts", "/run/host/local-fonts",
    "/run/host/user-fonts", "/run/host/fonts-cache" };

} // namespace

/// Everything that the version knows is refused where nothing allows it.
static LandlockRules everythingOf(int version)
{
    LandlockRules rules;
    rules.files = (LANDLOCK_ACCESS_FS_MAKE_SYM << 1) - 1; // from EXECUTE on, in the first version
    if (version >= 2)
        rules.files |= LANDLOCK_ACCESS_FS_REFER;
    if (version >= 3)
        rules.files |= accessTruncate;
    if (version >= 4)
        rules.net = netBindAndConnect;
    if (version >= 5)
        rules.files |= accessIoctlOfDevice;
    if (version >= 6)
        rules.scope = scopeSocketsAndSignals;
    return rules;
}

static void allowReading(const FileDescriptor &rules, const std::filesystem::path &path)
{
    const FileDescriptor place(::open(path.c_str(), O_PATH | O_CLOEXEC));
    struct stat status { };
    if (!place.isOpen() || ::fstat(place.get(), &status) != 0)
        return; // not every system has them all
    landlock_path_beneath_attr rule {};
    rule.allowed_access = S_ISDIR(status.st_mode) ? readFolder : readFile;
    rule.parent_fd = place.get();
    ::syscall(SYS_landlock_add_rule, rules.get(), LANDLOCK_RULE_PATH_BENEATH, &rule, 0);
}

int Lockdown::keepFromFiles() const
{
    const bool isKept
        = m_landlockRules.isOpen() && ::syscall(SYS_landlock_restrict_self, m_landlockRules.get(), 0) == 0;
    return isKept ? m_landlockVersion : 0;
}

// seccomp. What is not named here is answered with EPERM, which libraries take for a system that lacks it.

namespace {

using Calls = std::span<const char *const>;

constexpr std::array readingFiles { "read", "readv", "pread64", "preadv", "lseek", "close", "fstat", "newfstatat",
    "statx", "access", "faccessat", "faccessat2", "readlink", "readlinkat", "getdents64", "statfs", "fstatfs",
    "fadvise64", "getcwd", "dup", "pipe2" };
constexpr std::array answering { "write", "writev" };
constexpr std::array memory { "brk", "munmap", "mremap", "madvise", "membarrier" };
constexpr std::array waiting { "futex", "poll", "ppoll", "nanosleep", "clock_nanosleep", "eventfd2", "sched_yield",
    "restart_syscall" };
constexpr std::array ownSignals { "rt_sigaction", "rt_sigprocmask", "rt_sigreturn", "sigaltstack" };
constexpr std::array ownThreads { "set_robust_list", "rseq", "sched_getaffinity" };
constexpr std::array asking { "clock_gettime", "clock_getres", "gettimeofday", "getrandom", "getpid", "gettid",
    "getuid", "geteuid", "getgid", "getegid", "getrusage", "sysinfo", "uname", "umask" };
constexpr std::array ending { "exit", "exit_group" };
constexpr std::array<Calls, 8> allowed { readingFiles, answering, memory, waiting, ownSignals, ownThreads, asking,
    ending };

// No reader ever needs these, on no system: whoever calls them is not ours any more.
constexpr std::array attacks { "execve", "execveat", "ptrace", "process_vm_readv", "process_vm_writev",
    "io_uring_setup", "io_uring_enter", "io_uring_register", "bpf", "mount", "umount2", "unshare", "setns", "keyctl",
    "userfaultfd", "perf_event_open" };

} // namespace

static void addRule(scmp_filter_ctx filter, uint32_t action, const char *call, std::span<const scmp_arg_cmp> arguments)
{
    const int number = ::seccomp_syscall_resolve_name(call);
    if (number != __NR_SCMP_ERROR) // this system has no such call
        ::seccomp_rule_add_array(filter, action, number, static_cast<unsigned>(arguments.size()), arguments.data());
}

static void allow(scmp_filter_ctx filter, const char *call, std::initializer_list<scmp_arg_cmp> arguments = {})
{
    addRule(filter, SCMP_ACT_ALLOW, call, arguments);
}

static scmp_arg_cmp hasNone(unsigned argument, uint64_t bits) { return { argument, SCMP_CMP_MASKED_EQ, bits, 0 }; }

static scmp_arg_cmp hasAll(unsigned argument, uint64_t bits) { return { argument, SCMP_CMP_MASKED_EQ, bits, bits }; }

static scmp_arg_cmp isExactly(unsigned argument, uint64_t value) { return { argument, SCMP_CMP_EQ, value, 0 }; }

static void allowSomeWays(scmp_filter_ctx filter, Lockdown::Threads threads)
{
    allow(filter, "openat", { hasNone(2, O_ACCMODE | O_CREAT | O_TRUNC | O_APPEND | (O_TMPFILE & ~O_DIRECTORY)) });
    for (const int command : { F_GETFD, F_SETFD, F_GETFL, F_DUPFD_CLOEXEC })
        allow(filter, "fcntl", { isExactly(1, static_cast<uint64_t>(command)) });
    // Nothing that can be written is ever run: such memory is what a broken reader is taken over with.
    allow(filter, "mmap", { hasNone(2, PROT_EXEC) });
    allow(filter, "mmap", { hasNone(2, PROT_WRITE) });
    allow(filter, "mprotect", { hasNone(2, PROT_EXEC) });
    allow(filter, "prlimit64", { isExactly(0, 0), isExactly(2, 0) }); // its own limits, and only asked for
    // Its flags lie where a filter cannot look; without it the C library takes the old call.
    addRule(filter, SCMP_ACT_ERRNO(ENOSYS), "clone3", {});
    if (threads == Lockdown::Threads::Allowed)
        allow(filter, "clone", { hasAll(0, CLONE_VM | CLONE_THREAD) });
}

/// The kernel's instructions for the rules; none where they cannot be made.
static std::vector<sock_filter> compile(scmp_filter_ctx filter)
{
    const FileDescriptor file(::memfd_create("calls", MFD_CLOEXEC));
    if (::seccomp_export_bpf(filter, file.get()) != 0)
        return {};
    const off_t size = ::lseek(file.get(), 0, SEEK_END);
    std::vector<sock_filter> instructions(static_cast<std::size_t>(size) / sizeof(sock_filter));
    const ssize_t read = ::pread(file.get(), instructions.data(), static_cast<std::size_t>(size), 0);
    return read == size ? instructions : std::vector<sock_filter>();
}

static std::vector<sock_filter> makeFilter(Lockdown::Threads threads)
{
    // A call of another architecture's table kills, which is the library's own default.
    const std::unique_ptr<void, void (*)(scmp_filter_ctx)> filter(
        ::seccomp_init(SCMP_ACT_ERRNO(EPERM)), ::seccomp_release);
    if (!filter)
        return {};
    ::seccomp_attr_set(filter.get(), SCMP_FLTATR_CTL_OPTIMIZE, 2); // a tree in place of a list
    for (const Calls &group : allowed) {
        for (const char *call : group)
            allow(filter.get(), call);
    }
    allowSomeWays(filter.get(), threads);
    for (const char *call : attacks)
        addRule(filter.get(), SCMP_ACT_KILL_PROCESS, call, {});
    return compile(filter.get());
}

bool Lockdown::filterCalls(Threads threads) const
{
    const std::vector<sock_filter> &filter = threads == Threads::Allowed ? m_filterWithThreads : m_filter;
    sock_fprog program { static_cast<unsigned short>(filter.size()), const_cast<sock_filter *>(filter.data()) };
    return !filter.empty() && ::syscall(SYS_seccomp, SECCOMP_SET_MODE_FILTER, 0, &program) == 0;
}

Lockdown::Lockdown(const std::vector<std::filesystem::path> &readableFolders)
    : m_filter(makeFilter(Threads::None))
    , m_filterWithThreads(makeFilter(Threads::Allowed))
{
    m_landlockVersion
        = static_cast<int>(::syscall(SYS_landlock_create_ruleset, nullptr, 0, LANDLOCK_CREATE_RULESET_VERSION));
    if (m_landlockVersion <= 0)
        return;
    const LandlockRules rules = everythingOf(m_landlockVersion);
    // A kernel takes a structure that is longer than its own as long as what it does not know is zero.
    m_landlockRules = FileDescriptor(static_cast<int>(::syscall(SYS_landlock_create_ruleset, &rules, sizeof rules, 0)));
    for (const char *path : readablePaths)
        allowReading(m_landlockRules, path);
    if (::access("/.flatpak-info", F_OK) == 0) {
        for (const char *path : readableFlatpakPaths)
            allowReading(m_landlockRules, path);
    }
    for (const std::filesystem::path &folder : readableFolders)
        allowReading(m_landlockRules, folder);
}

} // namespace Varlo
