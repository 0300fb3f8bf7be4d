// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/FileFlags.h"

namespace Varlo {

/// Linux marks no file as being elsewhere: a network file system fetches while it is read, without another program.
struct LinuxFileFlags final : FileFlags {
    [[nodiscard]] bool isOnlineOnly(const std::filesystem::path &) const override { return false; }
};

} // namespace Varlo
