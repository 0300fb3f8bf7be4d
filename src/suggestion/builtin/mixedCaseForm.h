// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "suggestion/builtin/readName.h"

namespace Varlo {

/// A name in capitals as the document writes it elsewhere ("CASA LUNA" as "Casa Luna"); any other as it stands, since
/// nothing but the document can say which letters of "KLM" or "McKAY" are small.
[[nodiscard]] QString mixedCaseForm(const Words &words, const FoundName &name);

} // namespace Varlo
