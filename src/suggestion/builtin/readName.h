// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "suggestion/builtin/Reading.h"

namespace Varlo {

/// A proper name in the text: words [start, end), and what shows that it is one.
struct FoundName {
    QString text; ///< as it stands
    int start = 0, end = 0;
    bool hasLegalForm = false;
};

/// Reads the name of a company or a person that begins at this word, without the address, label or heading behind it
/// and without a form of address before it. Nothing when no name begins there.
[[nodiscard]] std::optional<FoundName> readName(const Reading &reading, int start);

} // namespace Varlo
