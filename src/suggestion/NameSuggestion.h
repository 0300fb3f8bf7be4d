// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

namespace Varlo {

/// A name for a file, and words to find it by.
struct NameSuggestion {
    QString name; ///< clean, without extension, never empty
    QStringList tags; ///< at most five, lower case; empty when none were asked for

    bool operator==(const NameSuggestion &) const = default;
};

} // namespace Varlo
