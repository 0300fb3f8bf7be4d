// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "extraction/isolation/ReadingLimits.h"
#include "extraction/isolation/WorkerAnswerDecoder.h"
#include "platform/FileDescriptor.h"
#include <QDeadlineTimer>
#include <QFuture>
#include <QObject>
#include <QPromise>
#include <QSocketNotifier>
#include <QTimer>

namespace Varlo {

enum class WorkerFailure {
    Unsafe, ///< it died, or what it said is nonsense
    TookTooLong,
    StarterGone, ///< through no fault of this file
    NotInstalled, ///< there is no starter
};
using WorkerOutcome = std::variant<WorkerAnswer, WorkerFailure>;

/// Awaits the answer of one worker, checks it, and keeps its time. Ends once: with the answer and then the end of the
/// socket, with a failure that the worker shows, or with one that it is told.
class WorkerCall final : public QObject {
    Q_OBJECT
public:
    WorkerCall(quint32 id, const WorkerJob &job, const ReadingLimits &limits, FileDescriptor answerSocket);

    [[nodiscard]] quint32 id() const { return m_id; }
    [[nodiscard]] QFuture<WorkerOutcome> outcome() { return m_promise.future(); }
    /// Takes what has come so far, which may be all that was missing.
    void readMessages();
    void end(const WorkerOutcome &outcome);

signals:
    void lockedIn(const Varlo::SandboxLayers &layers);
    /// The socket has ended without an answer. Whoever hears this says why, with end(), now or later.
    void died();
    void ended();

private:
    void takeMessage(QByteArrayView message);
    void takeEndOfSocket();
    void restartTimer();
    void takeTimeout();

    quint32 m_id;
    FileDescriptor m_socket;
    QSocketNotifier m_notifier;
    WorkerAnswerDecoder m_decoder;
    std::chrono::milliseconds m_withoutProgress;
    QDeadlineTimer m_deadline;
    QTimer m_timer;
    QPromise<WorkerOutcome> m_promise;
    bool m_isSocketAtEnd = false;
    bool m_hasEnded = false;
};

} // namespace Varlo
