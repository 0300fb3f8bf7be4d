// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "suggestion/builtin/Vocabulary.h"
#include "suggestion/builtin/Words.h"
#include <vector>

namespace Varlo {

struct LabelMark {
    Label label;
    int start = 0, end = 0; ///< words
    FilenameLanguage language;
};

/// The labels in the text, in its order; of two that overlap the longer one. `preferred` is the text's language:
/// single words of the other ones count only where nothing else can be meant. Auto takes all alike.
[[nodiscard]] std::vector<LabelMark> findLabels(const Words &words, FilenameLanguage preferred);

/// For every value the label it belongs to, as an index into `labels`, or -1. Forms put a label before its value;
/// tables put a row of labels before a row of values. Both lists are (first word, word behind the last) in the text's
/// order.
using Place = std::pair<int, int>;
[[nodiscard]] std::vector<int> labelsOfValues(const std::vector<Place> &labels, const std::vector<Place> &values);

} // namespace Varlo
