// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cli/Terminal.h"
#include "renaming/FolderAccessPanel.h"

namespace Varlo {

/// Asks on the terminal; declines at once where there is none, or where nothing may be asked.
class TerminalFolderPanel final : public FolderAccessPanel {
public:
    explicit TerminalFolderPanel(Terminal &terminal)
        : m_terminal(terminal)
    {
    }
    void setMayAsk(bool mayAsk) { m_mayAsk = mayAsk; }
    [[nodiscard]] QCoro::Task<std::optional<std::filesystem::path>> ask(std::filesystem::path folder) override;

private:
    Terminal &m_terminal;
    bool m_mayAsk = true;
};

} // namespace Varlo
