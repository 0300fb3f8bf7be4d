// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "renaming/FolderAccessPanel.h"
#include <functional>
#include <vector>

namespace Varlo {

/// Declines, unless told what to answer; keeps which folders it was asked for.
struct FakeFolderAccessPanel final : FolderAccessPanel {
    using Answer = std::optional<std::filesystem::path>;
    std::function<Answer(const std::filesystem::path &)> answer
        = [](const std::filesystem::path &) { return Answer(); };
    std::vector<std::filesystem::path> asked;

    [[nodiscard]] QCoro::Task<Answer> ask(std::filesystem::path folder) override
    {
        asked.push_back(folder);
        Answer chosen = answer(folder);
        co_return chosen;
    }
};

} // namespace Varlo
