// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "extraction/worker/Starter.h"

#include "extraction/worker/AnswerWriter.h"
#include "platform/linux/retryInterrupted.h"
#include <algorithm>
#include <array>
#include <csignal>
#include <poll.h>
#include <sys/resource.h>
#include <sys/signalfd.h>
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

Starter::Starter(const FileDescriptor &control, JobPerformer &performer, const Lockdown &lockdown)
    : m_control(control)
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
    for (;;) {
        startWaiting();
        std::array<pollfd, 2> sources { pollfd { m_control.get(), POLLIN, 0 },
            pollfd { m_childSignals.get(), POLLIN, 0 } };
        if (retryInterrupted([&] { return ::poll(sources.data(), sources.size(), -1); }) < 0)
            return;
        if (sources[1].revents != 0)
            reap();
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
    if (message.action == ControlMessage::Action::Stop) {
        stop(message.id);
        return true;
    }
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

void Starter::startWaiting()
{
    for (; !m_waiting.empty() && m_workers.size() < mostWorkers; m_waiting.pop_front()) {
        const WaitingJob &job = m_waiting.front();
        m_performer.prepare(job.job);
        const pid_t starter = ::getpid();
        const pid_t worker = ::fork();
        if (worker == 0)
            work(job, starter);
        if (worker > 0)
            m_workers.emplace(worker, job.id);
        // Without a worker its socket ends here, which is answer enough.
    }
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

void Starter::stop(quint32 id)
{
    std::erase_if(m_waiting, [id](const WaitingJob &job) { return job.id == id; });
    for (const auto &[worker, workerId] : m_workers) {
        if (workerId == id)
            ::kill(worker, SIGKILL);
    }
}

void Starter::reap()
{
    // Several that ended together may have left one signal.
    signalfd_siginfo signal;
    while (::read(m_childSignals.get(), &signal, sizeof signal) > 0) { }
    for (pid_t worker = ::waitpid(-1, nullptr, WNOHANG); worker > 0; worker = ::waitpid(-1, nullptr, WNOHANG))
        m_workers.erase(worker);
}

void Starter::endAll()
{
    for (const auto &[worker, id] : m_workers)
        ::kill(worker, SIGKILL);
    for (const auto &[worker, id] : m_workers)
        retryInterrupted([pid = worker] { return ::waitpid(pid, nullptr, 0); });
}

} // namespace Varlo
