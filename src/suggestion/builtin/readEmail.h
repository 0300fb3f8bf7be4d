// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "suggestion/builtin/readSource.h"

namespace Varlo {

/// Whether the text begins with header fields as RFC 5322 has them.
[[nodiscard]] bool looksLikeEmail(const QString &text);
[[nodiscard]] Source readEmail(const QString &text);

} // namespace Varlo
