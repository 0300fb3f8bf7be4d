// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "extraction/isolation/ControlMessage.h"
#include "extraction/worker/JobPerformer.h"
#include "extraction/worker/Lockdown.h"
#include "platform/FileDescriptor.h"
#include <deque>
#include <map>
#include <set>
#include <string>
#include <sys/types.h>
#include <vector>

namespace Varlo {

/// Forks a locked-down worker for each job that it is told of, five at once, and waits for them. It never looks into a
/// file, so that nothing of one is left for the next. For a process without threads.
///
/// What a process has mapped makes its forks slow, and a job takes few of the libraries that all jobs together take. So
/// for each set of libraries the starter forks a branch: a starter of its own, which loads them and forks the workers
/// of such jobs. A branch that dies takes the starter along, as whoever waits for a worker of it would not know
/// otherwise.
class Starter {
public:
    /// The other two outlive the starter.
    Starter(FileDescriptor control, JobPerformer &performer, const Lockdown &lockdown);
    /// Goes on until the other side of the control socket is gone or makes no sense. No worker is left then, and no
    /// branch. It also returns in each branch, at its end.
    void serve();

private:
    struct WaitingJob {
        quint32 id;
        WorkerJob job;
        FileDescriptor answerSocket;
        FileDescriptor file;
    };
    struct Branch {
        std::string libraries;
        pid_t process;
        FileDescriptor control; ///< takes jobs, and tells which of them are over
        std::set<quint32> jobs; ///< whose workers may still live
    };

    void serveUntilEnd();
    // False, of these: it is time to end.
    [[nodiscard]] bool takeMessage();
    [[nodiscard]] bool stop(quint32 id);
    [[nodiscard]] bool confirm(quint32 id);
    [[nodiscard]] bool startWaiting();
    [[nodiscard]] bool start(const WaitingJob &job);
    [[nodiscard]] bool handOver(const WaitingJob &job, Branch &branch);
    [[nodiscard]] bool reap();
    [[nodiscard]] bool forget(pid_t process);
    [[nodiscard]] bool takeNews(Branch &branch);

    [[nodiscard]] bool isBranch() const { return !m_libraries.empty(); }
    [[nodiscard]] std::size_t workerCount() const;
    void startWorker(const WaitingJob &job);
    [[noreturn]] void work(const WaitingJob &job, pid_t starter);
    [[nodiscard]] Branch *branchFor(const WorkerJob &job, std::string_view libraries);
    [[nodiscard]] Branch *makeBranch(const WorkerJob &job, std::string_view libraries);
    void becomeBranch(FileDescriptor control, std::string_view libraries, pid_t starter);
    void endAll();

    FileDescriptor m_control;
    JobPerformer &m_performer;
    const Lockdown &m_lockdown;
    FileDescriptor m_childSignals;
    std::deque<WaitingJob> m_waiting;
    std::map<pid_t, quint32> m_workers;
    std::vector<Branch> m_branches;
    std::set<quint32> m_toConfirm; // once their branch has told that they are over
    std::string m_libraries; // that this process has loaded, if it is a branch
};

} // namespace Varlo
