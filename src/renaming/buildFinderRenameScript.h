// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace Varlo {

/// The AppleScript by which Finder renames the file at `path` (absolute), in its own folder, to `cleanedName`, with "."
/// and `extension` behind it where that is not empty. A taken name gets a space and a number from 2 to 100; after that
/// the script fails. Its result is the path that the file then has. Pure.
[[nodiscard]] QString buildFinderRenameScript(
    const QString &path, const QString &cleanedName, const QString &extension);

} // namespace Varlo
