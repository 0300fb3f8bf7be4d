// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/closestWord.h"

#include <algorithm>

namespace Varlo {

/// Optimal string alignment distance.
static std::size_t editDistance(const std::string &from, const std::string &to)
{
    std::vector<std::vector<std::size_t>> distance(from.size() + 1, std::vector<std::size_t>(to.size() + 1));
    for (std::size_t i = 0; i <= from.size(); ++i)
        distance[i][0] = i;
    for (std::size_t j = 0; j <= to.size(); ++j)
        distance[0][j] = j;
    for (std::size_t i = 1; i <= from.size(); ++i) {
        for (std::size_t j = 1; j <= to.size(); ++j) {
            const std::size_t replaced = distance[i - 1][j - 1] + (from[i - 1] == to[j - 1] ? 0 : 1);
            distance[i][j] = std::min({ distance[i - 1][j] + 1, distance[i][j - 1] + 1, replaced });
            if (i > 1 && j > 1 && from[i - 1] == to[j - 2] && from[i - 2] == to[j - 1])
                distance[i][j] = std::min(distance[i][j], distance[i - 2][j - 2] + 1);
        }
    }
    return distance[from.size()][to.size()];
}

std::optional<std::string> closestWord(const std::string &word, const std::vector<std::string> &known)
{
    constexpr std::size_t longestSensibleWord = 40;
    if (word.size() > longestSensibleWord)
        return {};
    std::optional<std::string> closest;
    std::size_t best = std::max<std::size_t>(1, word.size() / 3) + 1;
    for (const std::string &candidate : known) {
        const std::size_t distance = editDistance(word, candidate);
        if (distance < best) {
            best = distance;
            closest = candidate;
        }
    }
    return closest;
}

} // namespace Varlo
