// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "renaming/FileRenamer.h"
#include <span>
#include <vector>

namespace Varlo {

/// The path that each request would lead to if they were carried out now, one after the other: numbers for names that
/// are taken are already there. Changes nothing; what another program does meanwhile may still change the outcome.
[[nodiscard]] std::vector<FileRenamer::Outcome> planRenames(std::span<const RenameRequest> requests);

} // namespace Varlo
