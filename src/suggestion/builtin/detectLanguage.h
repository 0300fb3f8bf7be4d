// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "suggestion/builtin/findLabels.h"
#include <vector>

namespace Varlo {

/// Dutch, Spanish or English, by the small words and labels of each; English when nothing tells.
[[nodiscard]] FilenameLanguage detectLanguage(const Words &words, const std::vector<LabelMark> &labels);

} // namespace Varlo
