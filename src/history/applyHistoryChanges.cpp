// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "history/applyHistoryChanges.h"

#include "platform/Result.h"
#include <algorithm>
#include <span>

namespace Varlo {

using std::filesystem::path;

template <typename Entries> static auto findEntry(Entries &entries, const path &toPath, double date)
{
    // From the newest: that is where a journal's renames are.
    return std::find_if(entries.rbegin(), entries.rend(),
        [&](const RenameLogEntry &entry) { return entry.date == date && entry.toPath == toPath; });
}

/// How many changes to pass over: those up to the latest one that the log has. They were stored together, and one of
/// them that is not there any more has fallen out at the log's far end.
static std::size_t storedCount(const RenameLogEntries &entries, std::span<const HistoryChange> changes)
{
    for (std::size_t count = changes.size(); count > 0; --count) {
        const auto *added = std::get_if<RenameAdded>(&changes[count - 1]);
        if (added && findEntry(entries, added->toPath, added->date) != entries.rend())
            return count;
    }
    return 0;
}

static void takeBack(RenameLogEntries &entries, const RenameTakenBack &change)
{
    const auto entry = findEntry(entries, change.toPath, change.date);
    if (entry != entries.rend() && entry->isStanding())
        entry->undoneAt = change.undoneAt;
}

RenameLogEntries applyHistoryChanges(RenameLogEntries entries, const std::vector<HistoryChange> &changes)
{
    std::span<const HistoryChange> left(changes);
    const auto cleared = std::find_if(changes.rbegin(), changes.rend(),
        [](const HistoryChange &change) { return std::holds_alternative<HistoryCleared>(change); });
    if (cleared != changes.rend()) {
        entries.clear(); // whatever came later is among the changes that are left
        left = left.subspan(static_cast<std::size_t>(cleared.base() - changes.begin()));
    }
    const std::size_t stored = storedCount(entries, left);
    for (std::size_t at = 0; at < left.size(); ++at) {
        std::visit(Overloaded {
                       [&](const RenameAdded &added) {
                           if (at >= stored)
                               entries.push_back({ added.fromPath, added.toPath, added.date, std::nullopt });
                       },
                       [&](const RenameTakenBack &change) { takeBack(entries, change); },
                       [](HistoryCleared) {},
                   },
            left[at]);
    }
    while (entries.size() > maximumLogEntries)
        entries.pop_front();
    return entries;
}

} // namespace Varlo
