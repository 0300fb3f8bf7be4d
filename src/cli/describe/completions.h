// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cli/describe/CommandDescription.h"

namespace Varlo {

/// The scripts that complete a call of the command, one a shell. They need nothing beside the shell itself.
[[nodiscard]] std::string bashCompletion(const CommandDescription &root);
[[nodiscard]] std::string zshCompletion(const CommandDescription &root);
[[nodiscard]] std::string fishCompletion(const CommandDescription &root);

/// The text as one word of a POSIX shell.
[[nodiscard]] std::string shellQuoted(const std::string &text);

} // namespace Varlo
