// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "history/RenameLogEntry.h"
#include "renaming/JournalRecord.h"

namespace Varlo {

/// The newest renames that the log keeps.
constexpr std::size_t maximumLogEntries = 1000;

/// The log with the journal's changes made to it, cut to its newest entries. Making the same changes twice gives the
/// same log as making them once, so that a journal which outlived its storing does no harm.
[[nodiscard]] RenameLogEntries applyHistoryChanges(RenameLogEntries entries, const std::vector<HistoryChange> &changes);

} // namespace Varlo
