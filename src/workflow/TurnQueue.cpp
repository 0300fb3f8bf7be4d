// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "workflow/TurnQueue.h"

#include <QCoroFuture>

namespace Varlo {

QCoro::Task<void> TurnQueue::begin()
{
    if (!m_isBusy) {
        m_isBusy = true;
        co_return;
    }
    QPromise<void> promise;
    promise.start();
    const QFuture<void> turn = promise.future();
    m_waiting.push_back(std::move(promise));
    co_await turn;
}

void TurnQueue::end()
{
    if (m_waiting.empty()) {
        m_isBusy = false;
        return;
    }
    QPromise<void> next = std::move(m_waiting.front());
    m_waiting.pop_front();
    next.finish();
}

} // namespace Varlo
