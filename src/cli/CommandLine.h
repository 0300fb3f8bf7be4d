// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cli/Command.h"
#include "platform/Result.h"
#include <memory>
#include <span>
#include <string>

namespace CLI {
class App;
}

namespace Varlo {

/// What is wrong with the words of a call, for the user; the exit code is 2.
struct UsageError {
    std::string message;
};

/// The one description of the terminal's subcommands and options: it parses a call, and the manual pages and the
/// shells' completions are made from it.
class CommandLine {
public:
    CommandLine();
    ~CommandLine();

    /// `arguments` without the program's name; bytes as the kernel gave them.
    [[nodiscard]] Result<Command, UsageError> parse(std::span<const char *const> arguments);
    [[nodiscard]] const CLI::App &description() const { return *m_app; }

private:
    struct Values;

    void describeOpenAndExtract();
    void describeNaming();
    void describeHistory();
    void describeFolders();
    void describeTemplates();
    void describeSettings();
    CLI::App *addCommand(CLI::App &parent, const std::string &name, const std::string &summary);
    void addNamingOptions(CLI::App &app);
    void addFileArguments(CLI::App &app);
    [[nodiscard]] NamingOptions namingOptions(const CLI::App &app) const;
    [[nodiscard]] FileArguments fileArguments(const CLI::App &app) const;
    void addJsonFlag(CLI::App &app);

    std::unique_ptr<CLI::App> m_app;
    std::unique_ptr<Values> m_values; // what the options are parsed into
};

} // namespace Varlo
