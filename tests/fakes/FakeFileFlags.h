// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/FileFlags.h"
#include <set>

namespace Varlo {

struct FakeFileFlags final : FileFlags {
    std::set<std::filesystem::path> onlineOnly;
    [[nodiscard]] bool isOnlineOnly(const std::filesystem::path &path) const override
    {
        return onlineOnly.contains(path);
    }
};

} // namespace Varlo
