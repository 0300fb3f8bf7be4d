// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <deque>
#include <QCoroTask>
#include <QPromise>

namespace Varlo {

/// Lets actions that take a while follow each other in the order in which they were begun. Lives on the main thread.
class TurnQueue {
public:
    /// Ends when every action begun before has called end(). Also when the queue is destroyed meanwhile: the caller
    /// then has to notice that by itself.
    QCoro::Task<void> begin();
    /// The action whose turn it is is over.
    void end();
    [[nodiscard]] bool isIdle() const { return !m_isBusy; }

private:
    // A promise each, as an awaited signal that comes twice before its queued delivery would resume a waiter twice.
    std::deque<QPromise<void>> m_waiting;
    bool m_isBusy = false;
};

} // namespace Varlo
