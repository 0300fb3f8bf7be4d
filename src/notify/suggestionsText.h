// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "notify/SuggestedFile.h"
#include <QLatin1String>
#include <vector>

namespace Varlo {

/// Where the names stand in the platform data of org.freedesktop.Application's Open, beside the addresses of the files.
inline constexpr QLatin1String suggestionsKey("com.varlo.suggestions");

/// The names as JSON: an array with one object for each file, in the order of the files, whose paths are not in it.
[[nodiscard]] QString suggestionsText(const std::vector<SuggestedFile> &files);

/// Reads such text for these paths. Anybody on the session bus may have written it: an entry that is not whole gives no
/// name, and neither does the whole text when it is no array of one entry a path. What a name may be is left to its
/// taker.
[[nodiscard]] std::vector<SuggestedFile> suggestedFiles(
    const std::vector<std::filesystem::path> &paths, const QString &text);

} // namespace Varlo
