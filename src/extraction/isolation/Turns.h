// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <deque>
#include <QCoroTask>
#include <QPromise>

namespace Varlo {

/// Lets so many go on at once; the others wait. Lives on the main thread.
class Turns {
public:
    enum class Place { AtTheBack, InFront };

    explicit Turns(int atOnce)
        : m_free(atOnce)
    {
    }
    /// Ends when there is room.
    QCoro::Task<void> begin(Place place);
    /// One who has begun is done.
    void end();
    /// From now on nobody waits, whether there is room or not.
    void letEverybodyGo();

private:
    int m_free;
    bool m_isOver = false;
    // A promise each, as an awaited signal that comes twice before its queued delivery would resume a waiter twice.
    std::deque<QPromise<void>> m_waiting;
};

} // namespace Varlo
