// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Clock.h"
#include "renaming/RenameFailure.h"
#include "renaming/RenameJournal.h"
#include "renaming/RenameRequest.h"
#include <filesystem>
#include <functional>
#include <map>
#include <optional>
#include <span>

namespace Varlo {

/// Renames files in their own folders, each move noted down in the journal before it is made. Never takes a name from
/// another file: a taken one gets a space and a number from 2 to 99. Lives on the main thread.
class FileRenamer {
public:
    /// The path that the file has now.
    using Outcome = Result<std::filesystem::path, RenameFailure>;
    enum class Next { GoOn, Stop };
    /// Told of each outcome right after its move, before the next one. `index` is that of the request.
    using Report = std::function<Next(std::size_t index, const Outcome &outcome)>;
    /// So many moves share one write to the disk before them and one after them.
    static constexpr std::size_t groupSize = 64;

    /// Both outlive the renamer.
    FileRenamer(RenameJournal &journal, const Clock &clock);

    /// One file. No system call is made when it has the name already.
    [[nodiscard]] Outcome renameDirectly(const RenameRequest &request);
    /// Many files, one after the other, in their order. Returns how many were tried: all, unless `report` stopped it.
    std::size_t renameAll(std::span<const RenameRequest> requests, const Report &report);
    struct TakenBack {
        std::filesystem::path path; ///< that the file has now
        double undoneAt = 0; ///< in the terms of nextDate()
    };
    /// Gives the file at `path` its former base name back, exactly as it was; `date` is that of the logged rename.
    [[nodiscard]] Result<TakenBack, RenameFailure> takeBack(
        const std::filesystem::path &path, const std::string &formerBase, double date);

    /// The date with which the journal has a rename made here, for the history to log it by; once for each.
    [[nodiscard]] std::optional<double> takeDate(const std::filesystem::path &from, const std::filesystem::path &to);
    /// Now, in seconds since 2001-01-01 00:00:00 UTC; later than any answer before, as dates tell renames apart.
    [[nodiscard]] double nextDate() { return nextDate(now()); }

    /// True within `report`: the journal holds renames that have no outcome yet.
    [[nodiscard]] bool isRenaming() const { return m_isRenaming; }
    [[nodiscard]] RenameJournal &journal() { return m_journal; }

private:
    class Group;

    [[nodiscard]] double now() const;
    [[nodiscard]] double nextDate(double now);

    RenameJournal &m_journal;
    const Clock &m_clock;
    bool m_isRenaming = false;
    double m_latestDate = 0;
    std::multimap<std::pair<std::string, std::string>, double> m_unloggedDates; // by old and new path
};

} // namespace Varlo
