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
        Freed, ///< one of the moves leaves it
        Alike, ///< a move takes or leaves one that some volumes hold for the same
    };
    [[nodiscard]] Answer ask(const std::string &name) const;
    void add(const std::string &from, const std::string &to);

private:
    struct Plan {
        std::string name;
        bool isTaken = false;
    };
    void plan(const std::string &name, bool isTaken);

    std::unordered_multimap<std::string, Plan> m_plans; // by the name without case and composition
};

} // namespace Varlo
