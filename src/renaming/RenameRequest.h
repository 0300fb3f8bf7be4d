// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/FileIdentity.h"
#include <filesystem>
#include <optional>
#include <QString>

namespace Varlo {

/// One file and the name that it is to get.
struct RenameRequest {
    std::filesystem::path path; ///< absolute, without "." and ".."
    QString newName; ///< without extension; the file keeps the one it has
    /// Which file it was when the user added it; another one under its name is left alone. Absent: whichever is there.
    std::optional<FileIdentity> admitted;
};

} // namespace Varlo
