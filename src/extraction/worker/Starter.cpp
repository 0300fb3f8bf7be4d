// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "extraction/worker/Starter.h"

#include "extraction/worker/AnswerWriter.h"
#include "platform/linux/retryInterrupted.h"
#include <algorithm>
#include <array>
#include <csignal>
#include <cstdint>
#include <numeric>
#include <poll.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/signalfd.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

namespace Varlo {

static constexpr std::size_t mostWorkers = 5;
static constexpr std::size_t mostWaiting = 16; // whoever has more in hand is not the reader that we know
static constexpr int mostDescriptors = 128;

static sigset_t childSignal()
{
    sigset_t handled;
    ::sigemptyset(&handled);
    ::sigaddset(&handled, SIGCHLD);
    return handled;
}

Starter::Starter(FileDescriptor control, JobPerformer &performer, const Lockdown &lockdown)
    : m_control(std::move(control))
    , m_performer(performer)
    , m_lockdown(lockdown)
{
    const sigset_t blocked = childSignal();
    ::sigprocmask(SIG_BLOCK, &blocked, nullptr);
    m_childSignals = FileDescriptor(::signalfd(-1, &blocked, SFD_CLOEXEC | SFD_NONBLOCK));
    // Few enough that a worker can close each that is not its own.
    const rlimit most { mostDescriptors, mostDescriptors };
    ::setrlimit(RLIMIT_NOFILE, &most);
}

void Starter::serve()
{
    serveUntilEnd();
    endAll();
}

void Starter::serveUntilEnd()
{
    while (startWaiting()) {
        std::vector<pollfd> sources { { m_control.get(), POLLIN, 0 }, { m_childSignals.get(), POLLIN, 0 } };
        for (const Branch &branch : m_branches)
            sources.push_back({ branch.control.get(), POLLIN, 0 });
        if (retryInterrupted([&] { return ::poll(sources.data(), sources.size(), -1); }) < 0)
            return;
        for (std::size_t index = 0; index < m_branches.size(); ++index) {
            if (sources[index + 2].revents != 0 && !takeNews(m_branches[index]))
                return;
        }
        if (sources[1].revents != 0 && !reap())
            return;
        if (sources[0].revents != 0 && !takeMessage())
            return;
    }
}

bool Starter::takeMessage()
{
    std::optional<ReceivedControlMessage> received = receiveControlMessage(m_control);
    if (!received)
        return false;
    const ControlMessage &message = received->message;
    if (message.action == ControlMessage::Action::Stop)
        return stop(message.id);
    if (message.action == ControlMessage::Action::Confirm)
        return stop(message.id) && confirm(message.id);
    std::vector<FileDescriptor> &descriptors = received->descriptors;
    const std::size_t expected = message.job.kind == WorkerJob::Kind::Inspect ? 1 : 2;
    if (descriptors.size() != expected || m_waiting.size() >= mostWaiting)
        return false;
    WaitingJob job { message.id, message.job, std::move(descriptors.front()), {} };
    if (expected == 2)
        job.file = std::move(descriptors.back());
    m_waiting.push_back(std::move(job));
    return true;
}

bool Starter::stop(quint32 id)
{
    std::erase_if(m_waiting, [id](const WaitingJob &job) { return job.id == id; });
    for (const auto &[worker, workerId] : m_workers) {
        if (workerId == id)
            ::kill(worker, SIGKILL);
    }
    const ControlMessage message { ControlMessage::Action::Stop, id, {} };
    return std::all_of(m_branches.begin(), m_branches.end(), [&](const Branch &branch) {
        return !branch.jobs.contains(id) || sendControlMessage(branch.control, message, {});
    });
}

bool Starter::confirm(quint32 id)
{
    const bool isInBranch = std::any_of(
        m_branches.begin(), m_branches.end(), [id](const Branch &branch) { return branch.jobs.contains(id); });
    if (!isInBranch)
        return sendControlMessage(m_control, { ControlMessage::Action::Confirm, id, {} }, {}).has_value();
    m_toConfirm.insert(id);
    return true;
}

bool Starter::takeNews(Branch &branch)
{
    const std::optional<ReceivedControlMessage> received = receiveControlMessage(branch.control);
    if (!received)
        return false;
    const quint32 id = received->message.id;
    branch.jobs.erase(id);
    return m_toConfirm.erase(id) == 0 || confirm(id);
}

std::size_t Starter::workerCount() const
{
    return std::accumulate(m_branches.begin(), m_branches.end(), m_workers.size(),
        [](std::size_t count, const Branch &branch) { return count + branch.jobs.size(); });
}

bool Starter::startWaiting()
{
    while (!m_waiting.empty() && workerCount() < mostWorkers) {
        const WaitingJob job = std::move(m_waiting.front());
        m_waiting.pop_front();
        if (!start(job))
            return false;
    }
    return true;
}

bool Starter::start(const WaitingJob &job)
{
    const std::string_view libraries = m_performer.libraries(job.job);
    if (isBranch() || libraries.empty()) {
        startWorker(job);
        return true;
    }
    Branch *const branch = branchFor(job.job, libraries);
    return !branch || handOver(job, *branch); // without one the answer socket ends here
}

void Starter::startWorker(const WaitingJob &job)
{
    const pid_t starter = ::getpid();
    const pid_t worker = ::fork();
    if (worker == 0)
        work(job, starter);
    if (worker > 0)
        m_workers.emplace(worker, job.id);
    // Without a worker its socket ends here, which is answer enough.
}

bool Starter::handOver(const WaitingJob &job, Branch &branch)
{
    std::vector<int> descriptors { job.answerSocket.get() };
    if (job.file.isOpen())
        descriptors.push_back(job.file.get());
    branch.jobs.insert(job.id);
    return sendControlMessage(branch.control, { ControlMessage::Action::Start, job.id, job.job }, descriptors)
        .has_value();
}

Starter::Branch *Starter::branchFor(const WorkerJob &job, std::string_view libraries)
{
    const auto branch = std::find_if(
        m_branches.begin(), m_branches.end(), [libraries](const Branch &each) { return each.libraries == libraries; });
    return branch == m_branches.end() ? makeBranch(job, libraries) : &*branch;
}

/// Has what malloc takes next begin where a large page can: in pages of 4 KiB, each costs every worker a fault.
static void alignHeap()
{
    constexpr std::uintptr_t largePage = std::uintptr_t { 2 } << 20;
    const auto end = reinterpret_cast<std::uintptr_t>(::sbrk(0));
    ::sbrk(static_cast<std::intptr_t>((largePage - end % largePage) % largePage)); // malloc goes on behind it
}

/// Null where it cannot be made, and in the branch itself.
Starter::Branch *Starter::makeBranch(const WorkerJob &job, std::string_view libraries)
{
    std::array<int, 2> ends {};
    if (::socketpair(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC, 0, ends.data()) != 0)
        return nullptr;
    FileDescriptor ours(ends[0]);
    FileDescriptor theirs(ends[1]);
    const pid_t starter = ::getpid();
    const pid_t process = ::fork();
    if (process == 0) {
        becomeBranch(std::move(theirs), libraries, starter);
        m_performer.prepare(job);
        alignHeap();
    }
    if (process <= 0)
        return nullptr;
    return &m_branches.emplace_back(Branch { std::string(libraries), process, std::move(ours), {} });
}

/// Goes on as a starter with nothing to do yet. It keeps no end of a socket that others wait for the end of.
void Starter::becomeBranch(FileDescriptor control, std::string_view libraries, pid_t starter)
{
    ::prctl(PR_SET_PDEATHSIG, SIGKILL);
    if (::getppid() != starter) // it died before that call
        ::_exit(1);
    m_control = std::move(control);
    m_libraries = libraries;
    m_waiting.clear();
    m_workers.clear();
    m_branches.clear();
    m_toConfirm.clear();
}

static void closeAllBut(int first, int second)
{
    for (int descriptor = STDERR_FILENO + 1; descriptor < mostDescriptors; ++descriptor) {
        if (descriptor != first && descriptor != second)
            ::close(descriptor);
    }
}

void Starter::work(const WaitingJob &job, pid_t starter)
{
    const sigset_t blocked = childSignal();
    ::sigprocmask(SIG_UNBLOCK, &blocked, nullptr);
    const Lockdown::Threads threads
        = m_performer.needsThreads(job.job) ? Lockdown::Threads::Allowed : Lockdown::Threads::None;
    const SandboxLayers layers = m_lockdown.lockIn(threads, starter);
    // After that, as the lockdown is made of a descriptor too.
    closeAllBut(job.answerSocket.get(), job.file.get());

    AnswerWriter writer(job.answerSocket);
    writer.writeStarted(layers);
    const WorkerAnswer answer = m_performer.perform(job.job, job.file, [&writer] { writer.writeProgress(); });
    writer.write(answer);
    ::_exit(0); // nothing that ends with the program is this process's to end
}

bool Starter::reap()
{
    // Several that ended together may have left one signal.
    signalfd_siginfo signal;
    while (::read(m_childSignals.get(), &signal, sizeof signal) > 0) { }
    bool goesOn = true;
    for (pid_t ended = ::waitpid(-1, nullptr, WNOHANG); ended > 0; ended = ::waitpid(-1, nullptr, WNOHANG))
        goesOn = forget(ended) && goesOn;
    return goesOn;
}

bool Starter::forget(pid_t process)
{
    const auto worker = m_workers.find(process);
    if (worker == m_workers.end()) { // a branch
        std::erase_if(m_branches, [process](const Branch &branch) { return branch.process == process; });
        return false;
    }
    const ControlMessage news { ControlMessage::Action::Stop, worker->second, {} };
    m_workers.erase(worker);
    return !isBranch() || sendControlMessage(m_control, news, {});
}

void Starter::endAll()
{
    for (const auto &[worker, id] : m_workers)
        ::kill(worker, SIGKILL);
    for (const auto &[worker, id] : m_workers)
        retryInterrupted([pid = worker] { return ::waitpid(pid, nullptr, 0); });
    for (Branch &branch : m_branches) {
        branch.control = FileDescriptor(); // at which it ends in this way too
        retryInterrupted([&branch] { return ::waitpid(branch.process, nullptr, 0); });
    }
}

} // namespace Varlo
