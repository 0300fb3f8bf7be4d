// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "renaming/PlannedNames.h"

#include <algorithm>
#include <QString>

namespace Varlo {

/// Equal for all names that some volume or other takes for one.
static std::string foldedName(const std::string &name)
{
    const bool isAscii = std::none_of(name.begin(), name.end(), [](char byte) { return (byte & 0x80) != 0; });
    if (!isAscii)
        return QString::fromStdString(name).normalized(QString::NormalizationForm_KD).toCaseFolded().toStdString();
    std::string folded = name;
    std::transform(folded.begin(), folded.end(), folded.begin(),
        [](char byte) { return byte >= 'A' && byte <= 'Z' ? static_cast<char>(byte - 'A' + 'a') : byte; });
    return folded;
}

PlannedNames::Answer PlannedNames::ask(const std::string &name) const
{
    const auto [first, last] = m_plans.equal_range(foldedName(name));
    const auto found = std::find_if(first, last, [&](const auto &entry) { return entry.second.name == name; });
    if (found != last)
        return found->second.isTaken ? Answer::Taken : Answer::Freed;
    return first == last ? Answer::Untouched : Answer::Alike;
}

void PlannedNames::plan(const std::string &name, bool isTaken)
{
    std::string folded = foldedName(name);
    const auto [first, last] = m_plans.equal_range(folded);
    const auto found = std::find_if(first, last, [&](const auto &entry) { return entry.second.name == name; });
    if (found != last)
        found->second.isTaken = isTaken;
    else
        m_plans.emplace(std::move(folded), Plan { name, isTaken });
}

void PlannedNames::add(const std::string &from, const std::string &to)
{
    plan(from, false);
    plan(to, true);
}

} // namespace Varlo
