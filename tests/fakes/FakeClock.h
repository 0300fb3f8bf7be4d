// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Clock.h"

namespace Varlo {

/// Stands still until it is set.
struct FakeClock final : Clock {
    QDateTime time { QDate(2026, 3, 14), QTime(15, 9, 26), Qt::UTC };
    [[nodiscard]] QDateTime now() const override { return time; }
};

} // namespace Varlo
