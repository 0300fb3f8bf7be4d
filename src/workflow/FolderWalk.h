// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/CompactPath.h"
#include "platform/FileIdentity.h"
#include <chrono>
#include <filesystem>
#include <memory>
#include <optional>
#include <QtGlobal>
#include <vector>

namespace Varlo {

/// Finds the files that Varlo can name below what it was given, a slice at a time. Folders are walked depth first,
/// their entries in the order of their bytes; hidden entries, links to folders and the insides of packages (".app" and
/// the like) are passed over, and so is whatever cannot be listed. One thread at a time may use it.
class FolderWalk {
public:
    struct File {
        CompactPath path;
        qint64 byteSize = 0; ///< 0 where it could not be read
        std::optional<FileIdentity> identity; ///< of the entry itself, also where it is a link
    };

    /// `given` are standardized paths of files and folders. A given link to a folder is walked.
    explicit FolderWalk(std::vector<std::filesystem::path> given);
    ~FolderWalk();

    /// The next files, at least one unless the walk is over; returns after about `duration`, longer only where a single
    /// folder takes longer to list.
    [[nodiscard]] std::vector<File> next(std::chrono::milliseconds duration);

private:
    struct Entry;
    struct Folder;

    void visitGiven(const std::filesystem::path &path, std::vector<File> &found);
    void enter(const std::filesystem::path &path);

    std::vector<std::filesystem::path> m_given;
    std::size_t m_nextGiven = 0;
    std::vector<std::unique_ptr<Folder>> m_open; // from the outermost folder to the one being walked
};

} // namespace Varlo
