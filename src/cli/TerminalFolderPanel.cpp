// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/TerminalFolderPanel.h"

#include "platform/visibleText.h"
#include "renaming/FolderAccess.h"

namespace Varlo {

using namespace Qt::StringLiterals;

QCoro::Task<std::optional<std::filesystem::path>> TerminalFolderPanel::ask(std::filesystem::path folder)
{
    if (!m_mayAsk || !m_terminal.canAsk())
        co_return std::nullopt;
    const QString question
        = u"%1\n%2\n%3?"_s.arg(FolderAccess::panelMessage(), visibleText(folder), FolderAccess::panelConfirmation());
    if (m_terminal.confirm(question))
        co_return folder;
    co_return std::nullopt;
}

} // namespace Varlo
