// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace Varlo {

/// The text cut in its middle, with "…" there, so that it takes at most `columns` columns of a terminal. Both ends of a
/// file name matter: one tells the document, the other the kind.
[[nodiscard]] QString elidedInMiddle(const QString &text, int columns);

} // namespace Varlo
