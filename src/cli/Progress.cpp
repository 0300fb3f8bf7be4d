// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/Progress.h"

#include <QCoreApplication>

namespace Varlo {

using namespace Qt::StringLiterals;

Progress::Progress(Terminal &terminal, qsizetype total)
    : m_terminal(terminal)
    , m_total(total)
{
    m_sinceStart.start();
    m_sinceShown.start();
}

Progress::~Progress() { m_terminal.showProgress({}); }

void Progress::advance()
{
    constexpr qint64 showIntervalMs = 100;
    ++m_done;
    if (m_sinceShown.elapsed() < showIntervalMs)
        return;
    m_sinceShown.restart();
    m_terminal.showProgress(text());
}

QString Progress::text() const
{
    const qint64 secondsLeft = m_sinceStart.elapsed() * (m_total - m_done) / (m_done * 1000);
    return QCoreApplication::translate("Terminal", "%1 of %2 files, about %3:%4 left")
        .arg(m_done)
        .arg(m_total)
        .arg(secondsLeft / 60)
        .arg(secondsLeft % 60, 2, 10, QLatin1Char('0'));
}

} // namespace Varlo
