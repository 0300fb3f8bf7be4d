// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/FileIdentity.h"
#include <filesystem>
#include <optional>
#include <QByteArray>

namespace Varlo {

/// Remembers a folder so that it is found again after it was renamed where it is.
struct FolderBookmark {
    std::filesystem::path granted; ///< the path that the user allowed; stays the same when the folder is renamed
    std::filesystem::path path; ///< where the folder was last
    FileIdentity identity;

    /// Nothing when no folder is at the path.
    [[nodiscard]] static std::optional<FolderBookmark> of(const std::filesystem::path &folder);
    /// A JSON object with the paths in base64 beside their text where they are not UTF-8.
    [[nodiscard]] QByteArray encoded() const;
    /// `granted` stands in for the path that the user allowed where the data does not name it.
    [[nodiscard]] static std::optional<FolderBookmark> decode(
        const QByteArray &data, const std::filesystem::path &granted);

    struct Resolved {
        std::filesystem::path path;
        bool isStale = false; ///< the bookmark should be made anew from `path`
    };
    /// Nothing when the folder is neither at its path nor elsewhere in the folder above.
    [[nodiscard]] std::optional<Resolved> resolve() const;
};

/// Whether files in the folder can be seen and renamed.
[[nodiscard]] bool canRenameIn(const std::filesystem::path &folder);

} // namespace Varlo
