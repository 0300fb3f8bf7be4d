// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Clock.h"

namespace Varlo {

struct SystemClock final : Clock {
    [[nodiscard]] QDateTime now() const override { return QDateTime::currentDateTime(); }
};

} // namespace Varlo
