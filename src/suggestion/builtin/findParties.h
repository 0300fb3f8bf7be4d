// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "suggestion/builtin/readName.h"

namespace Varlo {

/// The first two parties of a contract as "Party A x Party B": by their roles, or behind "between". With only one to be
/// found its name alone.
[[nodiscard]] std::optional<QString> findParties(const Reading &reading);

} // namespace Varlo
