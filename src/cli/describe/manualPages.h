// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cli/describe/CommandDescription.h"
#include <map>

namespace Varlo {

/// The manual in mdoc(7): a page for the command and one for each of its subcommands, by file name ("varlo-key.1").
/// `date` is the pages' own, as "November 22, 2026"; `version` is "0.1.0".
[[nodiscard]] std::map<std::string, std::string> manualPages(
    const CommandDescription &root, const std::string &date, const std::string &version);

} // namespace Varlo
