// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Result.h"
#include "platform/SystemError.h"
#include <filesystem>
#include <QByteArrayView>

namespace Varlo {

enum class ReplacedMode {
    Kept, ///< an existing file's permissions stay
    OwnerOnly, ///< 0600 whatever it was
};

/// Puts `content` in the place of the whole file, or makes the file (0600). Whoever reads it meanwhile, and the disk
/// after a power cut, has the old content or the new one, never a part: the new file is written beside the old one,
/// synced, read back and compared, and only then takes the name. Qt's QSaveFile is no substitute: it misses a short
/// write on a nearly full disk and does not sync the folder.
/// A link stays and what it leads to is replaced. The file's folder must exist. Nothing but a regular file is replaced
/// (EISDIR, or EEXIST for a FIFO and the like), nor one that the caller may not write to. Two callers must not replace
/// one file at once: lock around it. On an error the old content still stands and no temporary file is left; only when
/// the folder could not be synced afterwards (EIO) may the new content stand.
[[nodiscard]] Result<void, SystemError> replaceFile(
    const std::filesystem::path &path, QByteArrayView content, ReplacedMode mode = ReplacedMode::Kept);

/// Deletes what a replacement of `path` left beside it when its process was killed. Only for who holds the lock.
void removeReplacementLeftovers(const std::filesystem::path &path);

/// Writes a new file with this content (0600), safe from a power cut. Error EEXIST where the name is taken by anything.
[[nodiscard]] Result<void, SystemError> createFile(const std::filesystem::path &path, QByteArrayView content);

/// The path that links lead to in the end, whether or not a file is there. ELOOP for links in a circle.
[[nodiscard]] Result<std::filesystem::path, SystemError> linkDestination(const std::filesystem::path &path);

} // namespace Varlo
