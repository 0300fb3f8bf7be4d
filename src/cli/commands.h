// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cli/Command.h"
#include "cli/Session.h"

namespace Varlo {

// What each subcommand does. Results go to standard output, everything else to standard error.

[[nodiscard]] ExitCode run(const OpenCommand &command, Session &session);
[[nodiscard]] ExitCode run(const SuggestCommand &command, Session &session);
[[nodiscard]] ExitCode run(const RenameCommand &command, Session &session);
[[nodiscard]] ExitCode run(const WatchCommand &command, Session &session);
[[nodiscard]] ExitCode run(const HistoryCommand &command, Session &session);
[[nodiscard]] ExitCode run(const HistoryClearCommand &command, Session &session);
[[nodiscard]] ExitCode run(const UndoCommand &command, Session &session);
[[nodiscard]] ExitCode run(const FoldersListCommand &command, Session &session);
[[nodiscard]] ExitCode run(const FoldersAddCommand &command, Session &session);
[[nodiscard]] ExitCode run(const FoldersRemoveCommand &command, Session &session);
[[nodiscard]] ExitCode run(const ExtractCommand &command, Session &session);
/// With another way of reading.
[[nodiscard]] ExitCode run(const ExtractCommand &command, Terminal &terminal, ContentReader &reader);
[[nodiscard]] ExitCode run(const TemplatesListCommand &command, Session &session);
[[nodiscard]] ExitCode run(const TemplatesAddCommand &command, Session &session);
[[nodiscard]] ExitCode run(const TemplatesEditCommand &command, Session &session);
[[nodiscard]] ExitCode run(const TemplatesRemoveCommand &command, Session &session);
[[nodiscard]] ExitCode run(const ConfigListCommand &command, Session &session);
[[nodiscard]] ExitCode run(const ConfigGetCommand &command, Session &session);
[[nodiscard]] ExitCode run(const ConfigSetCommand &command, Session &session);
[[nodiscard]] ExitCode run(const KeyCommand &command, Session &session);
[[nodiscard]] ExitCode run(const FormatsCommand &command, Session &session);
[[nodiscard]] ExitCode run(const DoctorCommand &command, Session &session);
[[nodiscard]] ExitCode run(const ShowTextCommand &command, Session &session);

} // namespace Varlo
