// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Result.h"
#include "platform/SystemError.h"
#include <filesystem>
#include <QByteArrayView>

namespace Varlo {

// What happens to one of Varlo's own files that is damaged: it is kept as "NAME.damaged-1.EXTENSION" beside itself, or
// -2 and so on, never in the place of anything. Both give the path it was kept under.

/// Renames a damaged file; for a link, the file it leads to.
[[nodiscard]] Result<std::filesystem::path, SystemError> setAside(const std::filesystem::path &file);
/// Writes `content`, which `file` holds, for the user alone.
[[nodiscard]] Result<std::filesystem::path, SystemError> keepCopy(
    const std::filesystem::path &file, QByteArrayView content);

} // namespace Varlo
