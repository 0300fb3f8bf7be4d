// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <limits>
#include <optional>
#include <QByteArray>
#include <span>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace Varlo {

/// A rename that is about to be made. Names are bytes.
struct RenameIntent {
    quint64 id = 0; ///< random
    std::string folder;
    std::string from;
    std::string to;
    quint64 device = 0; ///< of no use after a restart, when a file system may get another number
    quint64 inode = 0;
    quint64 birthTimeNs = 0; ///< tells a file from a later one with the same inode; 0 where it is not known
    double date = 0; ///< seconds since 2001-01-01 00:00:00 UTC
    std::optional<double> undoneDate; ///< present when it takes a logged rename back: the date of that one
    bool isTold = false; ///< the user knows that its file was not found

    bool operator==(const RenameIntent &) const = default;
};
/// The file is about to get its new name as a second one, the old one to be deleted after it.
struct LinkingBegun {
    quint64 id = 0;

    bool operator==(const LinkingBegun &) const = default;
};
struct RenameDone {
    quint64 id = 0;

    bool operator==(const RenameDone &) const = default;
};
/// The file still has its old name.
struct RenameDropped {
    quint64 id = 0;

    bool operator==(const RenameDropped &) const = default;
};
/// A rename that somebody else made for us.
struct RenameReported {
    std::string fromPath;
    std::string toPath;
    double date = 0;

    bool operator==(const RenameReported &) const = default;
};
/// A logged rename was taken back without a move, as the file had its former name again.
struct UndoReported {
    std::string toPath;
    double date = 0;
    double undoneAt = 0;

    bool operator==(const UndoReported &) const = default;
};
/// The user cleared the history.
struct HistoryCleared {
    bool operator==(const HistoryCleared &) const = default;
};
using JournalRecord
    = std::variant<RenameIntent, LinkingBegun, RenameDone, RenameDropped, RenameReported, HistoryCleared, UndoReported>;

/// A rename to be added to the history.
struct RenameAdded {
    std::filesystem::path fromPath;
    std::filesystem::path toPath;
    double date = 0;

    bool operator==(const RenameAdded &) const = default;
};
/// The rename to `toPath` of `date` was taken back at `undoneAt`.
struct RenameTakenBack {
    std::filesystem::path toPath;
    double date = 0;
    double undoneAt = 0;

    bool operator==(const RenameTakenBack &) const = default;
};
using HistoryChange = std::variant<RenameAdded, RenameTakenBack, HistoryCleared>;

constexpr std::size_t allAdditions = std::numeric_limits<std::size_t>::max();
/// What the records say that was done, in the order in which it was begun; of the additions only the newest
/// `maximumAdditions`.
[[nodiscard]] std::vector<HistoryChange> historyChanges(
    const std::vector<JournalRecord> &records, std::size_t maximumAdditions = allAdditions);
/// In one step, where operator/ takes the folder's path apart and together again.
[[nodiscard]] inline std::filesystem::path pathIn(std::string_view folder, std::string_view name)
{
    std::string path;
    path.reserve(folder.size() + 1 + name.size());
    path.append(folder);
    if (!folder.ends_with('/'))
        path.push_back('/');
    path.append(name);
    return path;
}
/// The renames of which the records do not say how they ended.
[[nodiscard]] std::vector<RenameIntent> intentsWithoutOutcome(const std::vector<JournalRecord> &records);

/// The bytes that a journal file begins with. `epoch` tells two files of the same length apart.
[[nodiscard]] QByteArray journalHead(quint64 epoch);
constexpr qsizetype journalHeadSize = 16;
/// Records as they stand in the file, each a marker, the length, a CRC-32 of what follows, and the record.
[[nodiscard]] QByteArray encodeRecords(std::span<const JournalRecord> records);

/// A journal file's content, taken apart.
struct DecodedJournal {
    quint64 epoch = 0;
    std::vector<JournalRecord> records; ///< every one that is whole, also behind damage
    qsizetype wholeSize = 0; ///< the bytes up to the end of the last whole record
    bool isDamaged = false; ///< something else stands before or between the records; an unfinished end is no damage
};
[[nodiscard]] DecodedJournal decodeJournal(const QByteArray &content);

} // namespace Varlo
