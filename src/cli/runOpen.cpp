// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/commands.h"
#include "cli/FileArgumentList.h"
#include <cerrno>
#include <QCoreApplication>
#include <unistd.h>

namespace Varlo {

ExitCode run(const ShowTextCommand &command, Session &session)
{
    QString text = QString::fromStdString(command.text);
    while (text.endsWith(u'\n'))
        text.chop(1);
    session.terminal().print(text);
    return ExitCode::Success;
}

/// The window's program stands beside this one, or else somewhere in PATH.
static void executeWindow(const std::vector<std::filesystem::path> &files)
{
    std::error_code error;
    const std::filesystem::path beside
        = std::filesystem::read_symlink("/proc/self/exe", error).parent_path() / "varlo-window";
    std::vector<std::string> words { "varlo-window", "--" };
    for (const std::filesystem::path &file : files)
        words.push_back(resolvedArgument(file).native());
    std::vector<char *> arguments;
    for (std::string &word : words)
        arguments.push_back(word.data());
    arguments.push_back(nullptr);
    ::execv(beside.c_str(), arguments.data());
    ::execvp("varlo-window", arguments.data());
}

ExitCode run(const OpenCommand &command, Session &session)
{
    executeWindow(command.files); // returns only when it could not
    session.terminal().complain(
        QCoreApplication::translate("Terminal", "the window (varlo-window) is not installed; see `varlo --help`"));
    return ExitCode::SomeFailed;
}

} // namespace Varlo
