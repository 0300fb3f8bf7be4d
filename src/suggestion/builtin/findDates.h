// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "suggestion/builtin/findLabels.h"
#include <optional>
#include <QDate>
#include <vector>

namespace Varlo {

struct FoundDate {
    QDate date;
    int start = 0, end = 0; ///< words
};

/// Every full date in the text, in its order, written in figures or with a month's name in any of our languages.
/// "03/04/2025" is the third of April unless an English text looks American.
[[nodiscard]] std::vector<FoundDate> findDates(const Words &words, FilenameLanguage language);

/// The date of the document itself: by its label, else by where it stands. Never one that falls due, of a birth or of
/// a delivery, and none that is only spoken of.
[[nodiscard]] std::optional<QDate> documentDate(
    const Words &words, const std::vector<FoundDate> &dates, const std::vector<LabelMark> &labels);

} // namespace Varlo
