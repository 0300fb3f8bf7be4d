// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "extraction/isolation/Turns.h"

#include <QCoroFuture>

namespace Varlo {

QCoro::Task<void> Turns::begin(Place place)
{
    if (m_isOver)
        co_return;
    if (m_free > 0) {
        --m_free;
        co_return;
    }
    QPromise<void> promise;
    promise.start();
    const QFuture<void> turn = promise.future();
    if (place == Place::InFront)
        m_waiting.push_front(std::move(promise));
    else
        m_waiting.push_back(std::move(promise));
    co_await turn;
}

void Turns::end()
{
    if (m_waiting.empty()) {
        ++m_free;
        return;
    }
    QPromise<void> next = std::move(m_waiting.front());
    m_waiting.pop_front();
    next.finish();
}

void Turns::letEverybodyGo()
{
    m_isOver = true;
    while (!m_waiting.empty())
        end();
}

} // namespace Varlo
