// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "suggestion/builtin/readName.h"

namespace Varlo {

/// Who issued the document, exactly as written there: by a label, by a legal form, or by standing at its head; never
/// the one it is addressed to.
[[nodiscard]] std::optional<FoundName> findVendor(const Reading &reading);
/// Who wrote a letter: the letterhead, else the signature.
[[nodiscard]] std::optional<FoundName> findSender(const Reading &reading);
/// "Bakkerij De Korenaar" of "Bakkerij De Korenaar B.V."
[[nodiscard]] QString withoutLegalForm(const QString &name);

} // namespace Varlo
