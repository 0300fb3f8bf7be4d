// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "extraction/isolation/WorkerCall.h"

#include "platform/linux/retryInterrupted.h"
#include <algorithm>
#include <array>
#include <sys/socket.h>

namespace Varlo {

// So that a worker that talks without end leaves the event loop to others.
static constexpr int mostMessagesAtOnce = 64;

WorkerCall::WorkerCall(quint32 id, const WorkerJob &job, const ReadingLimits &limits, FileDescriptor answerSocket)
    : m_id(id)
    , m_socket(std::move(answerSocket))
    , m_notifier(m_socket.get(), QSocketNotifier::Read)
    , m_decoder(job)
    , m_withoutProgress(job.recognizesText ? limits.recognizedPage : limits.withoutProgress)
    , m_deadline(limits.inAll)
{
    m_promise.start();
    m_timer.setSingleShot(true);
    connect(&m_notifier, &QSocketNotifier::activated, this, &WorkerCall::readMessages);
    connect(&m_timer, &QTimer::timeout, this, &WorkerCall::takeTimeout);
    restartTimer();
}

void WorkerCall::restartTimer()
{
    m_timer.start(std::min(m_withoutProgress, std::chrono::milliseconds(m_deadline.remainingTime())));
}

void WorkerCall::readMessages()
{
    // One byte more than any message has: a longer one is cut, and then too long all the same.
    std::array<char, mostChunkBytes + 1> buffer;
    for (int count = 0; count < mostMessagesAtOnce && !m_hasEnded && !m_isSocketAtEnd; ++count) {
        const ssize_t size
            = retryInterrupted([&] { return ::recv(m_socket.get(), buffer.data(), buffer.size(), MSG_DONTWAIT); });
        if (size < 0 && errno == EAGAIN)
            return;
        if (size <= 0)
            takeEndOfSocket();
        else
            takeMessage({ buffer.data(), size });
    }
}

void WorkerCall::takeMessage(QByteArrayView message)
{
    const bool wasLockedIn = m_decoder.layers().has_value();
    const bool isTooLong = message.size() > mostChunkBytes;
    if (isTooLong || m_decoder.take(message) == WorkerAnswerDecoder::State::Nonsense) {
        end(WorkerFailure::Unsafe);
        return;
    }
    restartTimer();
    if (!wasLockedIn && m_decoder.layers())
        emit lockedIn(*m_decoder.layers());
}

void WorkerCall::takeEndOfSocket()
{
    m_isSocketAtEnd = true;
    m_notifier.setEnabled(false);
    if (m_decoder.state() == WorkerAnswerDecoder::State::Complete)
        end(m_decoder.answer());
    else
        emit died();
}

void WorkerCall::takeTimeout()
{
    readMessages(); // after the whole program stood still for a while, some may be there together with the time-out
    if (!m_timer.isActive() || m_deadline.hasExpired())
        end(WorkerFailure::TookTooLong);
}

void WorkerCall::end(const WorkerOutcome &outcome)
{
    if (m_hasEnded)
        return;
    m_hasEnded = true;
    m_notifier.setEnabled(false);
    m_timer.stop();
    m_promise.addResult(outcome);
    m_promise.finish();
    emit ended();
}

} // namespace Varlo
