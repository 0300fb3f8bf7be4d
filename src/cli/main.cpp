// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/CommandLine.h"
#include "cli/commands.h"
#include <clocale>
#include <QCoreApplication>
#include <sys/prctl.h>

using namespace Varlo;

/// The key passes through this process's memory, which therefore never goes into a core dump.
static void keepOutOfCoreDumps()
{
#ifndef __SANITIZE_ADDRESS__ // whose leak check has to look into the process
    ::prctl(PR_SET_DUMPABLE, 0);
#endif
}

int main(int argumentCount, char **arguments)
{
    keepOutOfCoreDumps();
    std::setlocale(LC_ALL, "");
    Session session(processEnvironment());
    CommandLine commandLine;
    const Result<Command, UsageError> command
        = commandLine.parse({ arguments + 1, static_cast<std::size_t>(argumentCount > 0 ? argumentCount - 1 : 0) });
    if (!command) {
        session.terminal().complain(QString::fromStdString(command.error().message));
        return static_cast<int>(ExitCode::WrongUsage);
    }
    if (const auto *text = std::get_if<ShowTextCommand>(&*command))
        return static_cast<int>(run(*text, session));

    QCoreApplication application(argumentCount, arguments);
    QCoreApplication::setApplicationName(QStringLiteral("varlo"));
    session.preferences(); // which choose the language of every text to come
    const ExitCode code = std::visit([&session](const auto &call) { return run(call, session); }, *command);
    return static_cast<int>(session.terminal().isOutputWhole() ? code : ExitCode::SomeFailed);
}
