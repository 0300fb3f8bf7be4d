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
    const auto found = m_plans.find(foldedName(name));
    if (found == m_plans.end())
        return Answer::Untouched;
    return found->second.isTaken && found->second.name == name ? Answer::Taken : Answer::Unclear;
}

void PlannedNames::add(const std::string &from, const std::string &to)
{
    m_plans.insert_or_assign(foldedName(from), Plan { from, false });
    m_plans.insert_or_assign(foldedName(to), Plan { to, true });
}

} // namespace Varlo
