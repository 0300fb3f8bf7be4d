// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <deque>
#include <filesystem>
#include <optional>
#include <QByteArray>
#include <QDateTime>
#include <QString>

namespace Varlo {

/// One rename that was made.
struct RenameLogEntry {
    std::filesystem::path fromPath; ///< before the rename: absolute, without "." and "..", in the bytes of the disk
    std::filesystem::path toPath; ///< after it
    double date = 0; ///< when it was logged, in seconds since 2001-01-01 00:00:00 UTC
    std::optional<double> undoneAt; ///< absent while the rename stands

    [[nodiscard]] bool isStanding() const { return !undoneAt; }
    /// `toPath` as shown, "@" and the shortest decimal text that reads back to the same `date`.
    [[nodiscard]] QString id() const;

    bool operator==(const RenameLogEntry &) const = default;
};

/// Oldest first.
using RenameLogEntries = std::deque<RenameLogEntry>;

/// Seconds since 2001-01-01 00:00:00 UTC, to the millisecond.
[[nodiscard]] double secondsSince2001(const QDateTime &time);
/// The reverse; a number of seconds that no calendar reaches gives an invalid time.
[[nodiscard]] QDateTime timeFromSecondsSince2001(double seconds);

/// A JSON array of objects, oldest first. A path whose bytes are not UTF-8 has them in a second key, in base64.
[[nodiscard]] QByteArray encodeRenameLog(const RenameLogEntries &entries);
/// Nothing when the data is anything but such an array.
[[nodiscard]] std::optional<RenameLogEntries> decodeRenameLog(const QByteArray &data);

} // namespace Varlo
