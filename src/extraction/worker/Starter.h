// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "extraction/isolation/ControlMessage.h"
#include "extraction/worker/JobPerformer.h"
#include "extraction/worker/Lockdown.h"
#include "platform/FileDescriptor.h"
#include <deque>
#include <map>
#include <sys/types.h>

namespace Varlo {

/// Forks a locked-down worker for each job that it is told of, five at once, and waits for them. It never looks into a
/// file, so that nothing of one is left for the next. For a process without threads.
class Starter {
public:
    /// All of them outlive the starter.
    Starter(const FileDescriptor &control, JobPerformer &performer, const Lockdown &lockdown);
    /// Goes on until the other side of the control socket is gone or makes no sense. No worker is left then.
    void serve();

private:
    struct WaitingJob {
        quint32 id;
        WorkerJob job;
        FileDescriptor answerSocket;
        FileDescriptor file;
    };

    void serveUntilEnd();
    [[nodiscard]] bool takeMessage();
    void startWaiting();
    [[noreturn]] void work(const WaitingJob &job, pid_t starter);
    void stop(quint32 id);
    void reap();
    void endAll();

    const FileDescriptor &m_control;
    JobPerformer &m_performer;
    const Lockdown &m_lockdown;
    FileDescriptor m_childSignals;
    std::deque<WaitingJob> m_waiting;
    std::map<pid_t, quint32> m_workers;
};

} // namespace Varlo
