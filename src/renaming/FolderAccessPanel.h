// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <optional>
#include <QCoroTask>

namespace Varlo {

/// Asks the user for a folder in which files may be renamed: a chooser in the window, a question in the terminal. It
/// shows FolderAccess::panelMessage() and lets the user confirm with FolderAccess::panelConfirmation().
struct FolderAccessPanel {
    virtual ~FolderAccessPanel() = default;
    /// Starts in `folder`. The folder chosen, which may be another one; nothing when the user declined.
    [[nodiscard]] virtual QCoro::Task<std::optional<std::filesystem::path>> ask(std::filesystem::path folder) = 0;
};

} // namespace Varlo
