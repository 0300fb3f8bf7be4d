// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cli/Terminal.h"
#include <QElapsedTimer>

namespace Varlo {

/// "12 of 40 files, about 0:31 left" on standard error, at most ten times a second.
class Progress {
public:
    Progress(Terminal &terminal, qsizetype total);
    ~Progress();
    Progress(const Progress &) = delete;
    Progress &operator=(const Progress &) = delete;

    void setTotal(qsizetype total) { m_total = total; }
    void advance();

private:
    [[nodiscard]] QString text() const;

    Terminal &m_terminal;
    qsizetype m_total;
    qsizetype m_done = 0;
    QElapsedTimer m_sinceStart;
    QElapsedTimer m_sinceShown;
};

} // namespace Varlo
