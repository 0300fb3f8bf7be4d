// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cerrno>

namespace Varlo {

/// Repeats a system call that a signal interrupted. Not without end: a file system whose calls never get through
/// answers EINTR for good, and that is then the caller's error. Not for close(), which must not be repeated.
template <typename Call> auto retryInterrupted(const Call &call)
{
    constexpr int attempts = 100;
    auto answer = call();
    for (int attempt = 1; attempt < attempts && answer < 0 && errno == EINTR; ++attempt)
        answer = call();
    return answer;
}

} // namespace Varlo
