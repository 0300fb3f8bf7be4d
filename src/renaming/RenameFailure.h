// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Message.h"
#include "platform/SystemError.h"
#include <variant>

namespace Varlo {

enum class RenameError {
    InvalidName, ///< nothing is left of the name once it is cleaned
    TooManyConflicts, ///< the name and its numbered variants are all taken
};
/// The name leads to another file than when the file was added, or to no regular file any more.
struct FileChanged {
    bool operator==(const FileChanged &) const = default;
};
/// A sandbox shows the file without its folder, and only there could it get another name.
struct SharedAlone {
    bool operator==(const SharedAlone &) const = default;
};
/// Nothing was moved, since the move could not be noted down first.
struct HistoryNotWritable {
    SystemError cause; ///< EAGAIN: another process was renaming all the while

    bool operator==(const HistoryNotWritable &) const = default;
};
/// Why a file still has its old name. A SystemError is the move's own.
using RenameFailure = std::variant<RenameError, FileChanged, SharedAlone, HistoryNotWritable, SystemError>;

/// The words shown to the user.
[[nodiscard]] Message description(const RenameFailure &failure);

/// The system refused the move for want of a right to the file's folder, so access to it is worth asking for.
[[nodiscard]] bool isPermissionDenied(const RenameFailure &failure);

} // namespace Varlo
