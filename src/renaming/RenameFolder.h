// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/FileDescriptor.h"
#include "platform/FileIdentity.h"
#include "renaming/RenameFailure.h"
#include "renaming/targetName.h"
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <sys/stat.h>

namespace Varlo {

/// What stands under a name; a symbolic link is itself.
struct NamedFile {
    FileIdentity identity;
    mode_t mode = 0;
    quint64 linkCount = 0;
    quint64 birthTimeNs = 0; ///< since 1970; 0 where the file system keeps none

    /// Of the kind that is renamed: a regular file, or a link, which is renamed itself.
    [[nodiscard]] bool isRenamable() const { return S_ISREG(mode) || S_ISLNK(mode); }
};

/// One move within a folder.
struct PlannedMove {
    std::string from;
    std::string to;
    NamedFile file;
    /// The file system takes both names for one, as when only the letter case differs on a volume that ignores it.
    bool isSameName = false;
};

/// A folder in which files are renamed. It is held open, so that everything happens in this one folder even while it is
/// itself moved. Names are bytes.
class RenameFolder {
public:
    [[nodiscard]] static Result<RenameFolder, SystemError> open(const std::filesystem::path &path);

    /// Network and FUSE file systems remember for a second or so what they said of a name, such as its link count.
    enum class Knowledge { Remembered, Fresh };
    /// Error ENOENT when the name is free.
    [[nodiscard]] Result<NamedFile, SystemError> find(
        const std::string &name, Knowledge knowledge = Knowledge::Remembered) const;
    /// Whether a name that leads to a known file is a second link to it, and so a name of its own: not so where the
    /// volume ignores case. A file with one link has one name, whatever the listing says: some list all names in lower
    /// case.
    [[nodiscard]] Result<bool, SystemError> isSecondLink(const std::string &name) const;
    /// True when the folder's listing has exactly these bytes; a volume that ignores case finds a file by other names
    /// as well.
    [[nodiscard]] Result<bool, SystemError> lists(const std::string &name) const;
    [[nodiscard]] std::size_t longestName() const { return m_longestName; }

    /// Gives the file its new name, and never takes a name from another file. `beforeLinking` comes first where
    /// the file is to have both names for a moment, because the file system has no better way; when it fails, nothing
    /// is moved. On an error the file still has its old name alone.
    using BeforeLinking = std::function<Result<void, SystemError>()>;
    [[nodiscard]] Result<void, RenameFailure> move(const PlannedMove &move, const BeforeLinking &beforeLinking) const;

    /// Deletes `name` if it still is this file and the file has another name.
    [[nodiscard]] Result<void, SystemError> unlinkExtraName(const std::string &name, const NamedFile &file) const;

    /// Makes the moves in it safe from a power cut, as far as the file system can.
    void sync() const;

private:
    RenameFolder(FileDescriptor descriptor, std::size_t longestName);

    [[nodiscard]] bool isNamed(const PlannedMove &move, const std::string &name) const;
    [[nodiscard]] Result<void, SystemError> moveByName(
        const PlannedMove &move, const BeforeLinking &beforeLinking) const;
    [[nodiscard]] Result<void, SystemError> moveByLink(
        const PlannedMove &move, const BeforeLinking &beforeLinking) const;
    [[nodiscard]] Result<void, SystemError> moveByCheck(const PlannedMove &move) const;
    [[nodiscard]] Result<void, SystemError> moveWithinSameName(const PlannedMove &move) const;
    [[nodiscard]] Result<void, RenameFailure> checkMoved(const PlannedMove &move) const;

    FileDescriptor m_descriptor;
    std::size_t m_longestName = 0;
};

} // namespace Varlo
