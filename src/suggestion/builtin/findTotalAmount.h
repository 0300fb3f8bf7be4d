// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "suggestion/builtin/findLabels.h"
#include <optional>
#include <vector>

namespace Varlo {

struct FoundAmount {
    qint64 hundredths = 0;
    QString currency; ///< ISO 4217, or empty when none stands beside the figures
    int start = 0, end = 0; ///< words
};

/// Every amount of money in the text, in its order: figures with a currency, or with two decimals.
[[nodiscard]] std::vector<FoundAmount> findAmounts(const Words &words);

/// What is to be paid, tax included; for a statement the balance in the end, for a payslip what is paid out.
/// Given as "1452.00 GBP": a dot, two decimals, no grouping, the currency where it is known.
[[nodiscard]] std::optional<QString> totalAmount(const Words &words, const std::vector<FoundAmount> &amounts,
    const std::vector<LabelMark> &labels, std::optional<DocumentType> type);

} // namespace Varlo
