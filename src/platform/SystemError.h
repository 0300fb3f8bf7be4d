// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cerrno>
#include <QString>

namespace Varlo {

/// What the system answered to a call that failed.
struct SystemError {
    int code = 0; ///< an errno value

    /// The error that the latest call of this thread left.
    [[nodiscard]] static SystemError latest() { return { errno }; }

    /// The system's own words for it, in the locale of the process.
    [[nodiscard]] QString description() const { return qt_error_string(code); }

    /// Refused for want of a right, as opposed to a read-only file system (EROFS), which no right could change.
    [[nodiscard]] bool isPermissionDenied() const { return code == EACCES || code == EPERM; }

    bool operator==(const SystemError &) const = default;
};

} // namespace Varlo
