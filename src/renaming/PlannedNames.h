// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <unordered_map>

namespace Varlo {

/// What the moves planned so far will do to the names of one folder, before any of them is made.
class PlannedNames {
public:
    enum class Answer {
        Untouched, ///< as it is on disk
        Taken, ///< one of the moves takes it
        Unclear, ///< a move frees it, or takes one that some volumes hold for the same: wait for that move
    };
    [[nodiscard]] Answer ask(const std::string &name) const;
    void add(const std::string &from, const std::string &to);

private:
    struct Plan {
        std::string name;
        bool isTaken = false;
    };
    std::unordered_map<std::string, Plan> m_plans; // by the name without case and composition
};

} // namespace Varlo
