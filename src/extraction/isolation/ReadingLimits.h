// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>

namespace Varlo {

/// How long one file may take.
struct ReadingLimits {
    std::chrono::milliseconds withoutProgress = std::chrono::seconds(20);
    std::chrono::milliseconds recognizedPage = std::chrono::seconds(60); ///< without progress, where text is recognized
    std::chrono::milliseconds inAll = std::chrono::minutes(10);
};

} // namespace Varlo
