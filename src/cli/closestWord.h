// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace Varlo {

/// The known word that `word` was probably meant to be: the nearest by edits (a letter put in, left out, replaced or
/// swapped with its neighbour), and no further than a third of its length away.
[[nodiscard]] std::optional<std::string> closestWord(const std::string &word, const std::vector<std::string> &known);

} // namespace Varlo
