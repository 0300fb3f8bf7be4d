// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace Varlo {

/// Cleans a proposed name into a legal file name without extension. Pure; may leave nothing.
/// White space and quotation marks (" ' `) at the ends go; < > : " / \ | ? * and the control characters U+0000 to
/// U+001F are deleted, not replaced; runs of white space become one space; the first 120 user-perceived characters
/// stay.
[[nodiscard]] QString sanitizeFilename(const QString &name);

} // namespace Varlo
