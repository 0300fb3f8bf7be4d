// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "extraction/isolation/ReadingLimits.h"
#include "extraction/isolation/WorkerCall.h"
#include "extraction/isolation/WorkerJob.h"
#include "platform/FileDescriptor.h"
#include <memory>
#include <optional>
#include <QFuture>
#include <QObject>
#include <QSocketNotifier>
#include <sys/types.h>
#include <vector>

namespace Varlo {

/// The starter, a process of ours that forks a locked-down worker for each file. It is started with the first need for
/// it, and again when it has died. Lives on the main thread.
class ExtractorProcess final : public QObject {
    Q_OBJECT
public:
    ExtractorProcess(QString program, const ReadingLimits &limits);
    /// Every worker is killed; what is awaited ends as unsafe.
    ~ExtractorProcess() override;

    /// Starts the starter, so that the first file need not wait for that. False where it is not installed.
    bool warmUp();
    /// Has one worker do this job. Always ends. The file, absent for a job without one, is passed on before the call
    /// returns.
    [[nodiscard]] QFuture<WorkerOutcome> ask(const WorkerJob &job, const FileDescriptor &file);

signals:
    /// How the latest worker is locked in.
    void lockedIn(const Varlo::SandboxLayers &layers);

private:
    [[nodiscard]] bool start();
    enum class StarterState;
    [[nodiscard]] StarterState starterState() const;
    [[nodiscard]] bool isStarterGone() const;
    void takeNews();
    void takeEndOfStarter();
    void endStarter();
    void takeDeath(WorkerCall *call);
    void forget(WorkerCall *call);

    QString m_program;
    ReadingLimits m_limits;
    pid_t m_starter = -1;
    FileDescriptor m_control;
    std::unique_ptr<QSocketNotifier> m_controlNotifier;
    std::vector<WorkerCall *> m_calls; // each deletes itself after its end
    quint32 m_latestId = 0;
};

} // namespace Varlo
