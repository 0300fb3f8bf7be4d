// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace CLI {
class App;
}

namespace Varlo {

/// What is typed for an option or an argument.
struct ValueDescription {
    enum class Kind {
        Text, ///< nothing that a shell could propose
        Choice, ///< one of `choices`
        File, ///< a file or a folder
        Folder,
    };
    std::string placeholder; ///< "LANGUAGE"
    Kind kind = Kind::Text;
    std::vector<std::string> choices;
};

struct OptionDescription {
    std::vector<std::string> names; ///< "-h", "--help"
    std::optional<ValueDescription> value; ///< absent for a flag
    std::string text;
    std::string defaultValue; ///< "" for none
};

struct ArgumentDescription {
    ValueDescription value;
    std::string text;
    bool isRequired = false;
    bool isRepeated = false;
};

/// One command or subcommand in plain values, which the manual pages and the completions are written from.
struct CommandDescription {
    std::string path; ///< "varlo templates add"
    std::string name; ///< "add"
    std::string summary;
    std::vector<std::string> paragraphs; ///< of the text below its help
    std::vector<std::string> examples; ///< lines for a shell, comments among them
    std::vector<OptionDescription> options;
    std::vector<ArgumentDescription> arguments; ///< in their order; only the last may be repeated
    std::vector<CommandDescription> commands;
};

/// The kind of a value is told by its choices, else by its placeholder: FILE, FOLDER or DIR, or any other word for a
/// text. The help's footer is paragraphs, each ended by an empty line, and then "Examples:" with indented lines.
/// Hidden options and commands are left out.
[[nodiscard]] CommandDescription describe(const CLI::App &app);

/// The command and every one below it, from the top down.
[[nodiscard]] std::vector<const CommandDescription *> withDescendants(const CommandDescription &command);

} // namespace Varlo
