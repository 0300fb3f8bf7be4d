// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "extraction/isolation/ExtractorProcess.h"

#include "extraction/isolation/ControlMessage.h"
#include "extraction/isolation/starterEnvironment.h"
#include "platform/linux/retryInterrupted.h"
#include <algorithm>
#include <array>
#include <csignal>
#include <fcntl.h>
#include <poll.h>
#include <QFile>
#include <spawn.h>
#include <sys/socket.h>
#include <sys/syscall.h>
#include <sys/wait.h>

namespace Varlo {

namespace {
struct SocketPair {
    FileDescriptor ours;
    FileDescriptor theirs;
};
} // namespace

static std::optional<SocketPair> makeSocketPair()
{
    std::array<int, 2> ends {};
    if (::socketpair(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC, 0, ends.data()) != 0)
        return {};
    return SocketPair { FileDescriptor(ends[0]), FileDescriptor(ends[1]) };
}

static std::vector<char *> pointers(std::vector<std::string> &texts)
{
    std::vector<char *> all;
    for (std::string &text : texts)
        all.push_back(text.data());
    all.push_back(nullptr);
    return all;
}

/// Starts the program with this socket as its control descriptor, and with nothing else of ours. In a process group of
/// its own, as an interrupt from the terminal is meant for us: what is being read then ends as we say. -1 where it
/// cannot be started.
static pid_t spawnStarter(const QByteArray &program, const FileDescriptor &control)
{
    posix_spawn_file_actions_t actions;
    ::posix_spawn_file_actions_init(&actions);
    ::posix_spawn_file_actions_adddup2(&actions, control.get(), controlDescriptor);
    ::posix_spawn_file_actions_addopen(&actions, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
    ::posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
    ::posix_spawn_file_actions_addopen(&actions, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
    ::posix_spawn_file_actions_addclosefrom_np(&actions, controlDescriptor + 1);

    posix_spawnattr_t attributes;
    sigset_t none;
    sigset_t all;
    ::sigemptyset(&none);
    ::sigfillset(&all);
    ::posix_spawnattr_init(&attributes);
    ::posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETPGROUP | POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF);
    ::posix_spawnattr_setsigmask(&attributes, &none);
    ::posix_spawnattr_setsigdefault(&attributes, &all);

    std::vector<std::string> arguments { program.toStdString() };
    std::vector<std::string> environment = starterEnvironment();
    pid_t process = -1;
    const int error = ::posix_spawn(
        &process, program.constData(), &actions, &attributes, pointers(arguments).data(), pointers(environment).data());
    ::posix_spawnattr_destroy(&attributes);
    ::posix_spawn_file_actions_destroy(&actions);
    return error == 0 ? process : -1;
}

ExtractorProcess::ExtractorProcess(QString program, const ReadingLimits &limits)
    : m_program(std::move(program))
    , m_limits(limits)
{
}

ExtractorProcess::~ExtractorProcess()
{
    endStarter();
    for (WorkerCall *call : std::exchange(m_calls, {})) {
        call->disconnect(this);
        call->end(WorkerFailure::Unsafe);
        delete call;
    }
}

bool ExtractorProcess::warmUp() { return m_control.isOpen() || start(); }

bool ExtractorProcess::start()
{
    std::optional<SocketPair> sockets = makeSocketPair();
    if (!sockets)
        return false;
    m_starter = spawnStarter(QFile::encodeName(m_program), sockets->theirs);
    if (m_starter < 0)
        return false;
    m_control = std::move(sockets->ours);
    m_controlNotifier = std::make_unique<QSocketNotifier>(m_control.get(), QSocketNotifier::Read);
    connect(m_controlNotifier.get(), &QSocketNotifier::activated, this, &ExtractorProcess::takeNews);
    return true;
}

enum class ExtractorProcess::StarterState { Silent, HasNews, Gone };

ExtractorProcess::StarterState ExtractorProcess::starterState() const
{
    char byte = 0;
    const ssize_t size = m_control.isOpen() ? ::recv(m_control.get(), &byte, 1, MSG_PEEK | MSG_DONTWAIT) : 0;
    if (size > 0)
        return StarterState::HasNews;
    return size < 0 && errno == EAGAIN ? StarterState::Silent : StarterState::Gone;
}

bool ExtractorProcess::isStarterGone() const { return starterState() == StarterState::Gone; }

/// Gives it a moment: once it has noticed the end of the control socket, it leaves no worker behind.
static void awaitEnd(pid_t process)
{
    constexpr int momentMs = 300;
    const FileDescriptor ending(static_cast<int>(::syscall(SYS_pidfd_open, process, 0))); // Linux 5.3
    pollfd source { ending.get(), POLLIN, 0 };
    if (ending.isOpen())
        retryInterrupted([&source] { return ::poll(&source, 1, momentMs); });
}

void ExtractorProcess::endStarter()
{
    m_controlNotifier.reset();
    m_control = FileDescriptor();
    if (m_starter < 0)
        return;
    awaitEnd(m_starter);
    ::kill(m_starter, SIGKILL); // workers of one that hangs die with it
    retryInterrupted([this] { return ::waitpid(m_starter, nullptr, 0); });
    m_starter = -1;
}

void ExtractorProcess::takeNews()
{
    if (starterState() == StarterState::Silent)
        return; // a notifier that replaces another for the same descriptor may be told of what that one was for
    const std::optional<ReceivedControlMessage> confirmation = receiveControlMessage(m_control);
    if (!confirmation) {
        takeEndOfStarter();
        return;
    }
    const auto call = std::find_if(m_calls.begin(), m_calls.end(),
        [&confirmation](const WorkerCall *each) { return each->id() == confirmation->message.id; });
    if (call != m_calls.end())
        (*call)->end(WorkerFailure::Unsafe);
}

/// A starter that was killed takes its workers along, and they may be gone first. Only one that is alive can confirm
/// that a worker has died by itself.
void ExtractorProcess::takeDeath(WorkerCall *call)
{
    const ControlMessage question { ControlMessage::Action::Confirm, call->id(), {} };
    if (isStarterGone() || !sendControlMessage(m_control, question, {}))
        call->end(WorkerFailure::StarterGone);
}

void ExtractorProcess::takeEndOfStarter()
{
    endStarter();
    for (WorkerCall *call : std::vector(m_calls)) {
        call->readMessages(); // the answer may have come before
        call->end(WorkerFailure::StarterGone);
    }
}

QFuture<WorkerOutcome> ExtractorProcess::ask(const WorkerJob &job, const FileDescriptor &file)
{
    const auto failed = [](WorkerFailure failure) { return QtFuture::makeReadyFuture(WorkerOutcome(failure)); };
    if (m_control.isOpen() && isStarterGone())
        takeEndOfStarter();
    if (!warmUp())
        return failed(WorkerFailure::NotInstalled);
    std::optional<SocketPair> answer = makeSocketPair();
    if (!answer)
        return failed(WorkerFailure::Unsafe);

    const ControlMessage message { ControlMessage::Action::Start, ++m_latestId, job };
    std::vector<int> descriptors { answer->theirs.get() };
    if (file.isOpen())
        descriptors.push_back(file.get());
    if (!sendControlMessage(m_control, message, descriptors)) {
        takeEndOfStarter();
        return failed(WorkerFailure::StarterGone);
    }

    auto *const call = new WorkerCall(message.id, job, m_limits, std::move(answer->ours));
    m_calls.push_back(call);
    connect(call, &WorkerCall::lockedIn, this, &ExtractorProcess::lockedIn);
    connect(call, &WorkerCall::died, this, [this, call] { takeDeath(call); });
    connect(call, &WorkerCall::ended, this, [this, call] { forget(call); });
    return call->outcome();
}

void ExtractorProcess::forget(WorkerCall *call)
{
    std::erase(m_calls, call);
    call->deleteLater();
    // Also after a good answer: it may have been given by somebody who means to go on.
    const ControlMessage stop { ControlMessage::Action::Stop, call->id(), {} };
    if (m_control.isOpen() && !sendControlMessage(m_control, stop, {}))
        endStarter();
}

} // namespace Varlo
