// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDateTime>

namespace Varlo {

/// The time of day. An interface, so that tests can stand still.
struct Clock {
    virtual ~Clock() = default;
    [[nodiscard]] virtual QDateTime now() const = 0;
};

} // namespace Varlo
