// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

namespace Varlo {

/// The environment of the starter and so of every worker, as NAME=value: language and time zone of ours, what the
/// libraries there have to be told before they are loaded, and nothing else. No key, no home, no search path.
[[nodiscard]] std::vector<std::string> starterEnvironment();

} // namespace Varlo
