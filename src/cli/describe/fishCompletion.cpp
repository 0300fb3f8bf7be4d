// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/describe/completions.h"

#include <CLI/StringTools.hpp>
#include <sstream>

namespace Varlo {

/// Between fish's single quotes only the quote and the backslash are special.
static std::string fishQuoted(const std::string &text)
{
    std::string quoted = "'";
    for (const char character : text) {
        if (character == '\'' || character == '\\')
            quoted += '\\';
        quoted += character;
    }
    return quoted + "'";
}

/// A rule for the command, at any of its arguments or at the one with that number.
static std::string rule(const CommandDescription &command, const std::string &number = {})
{
    const std::string condition = "__varlo_at " + fishQuoted(command.path) + (number.empty() ? "" : " " + number);
    return "complete -c varlo -n " + fishQuoted(condition);
}

static std::string proposal(const ValueDescription &value)
{
    switch (value.kind) {
    case ValueDescription::Kind::Text:
        return {};
    case ValueDescription::Kind::Choice:
        return " -a " + fishQuoted(CLI::detail::join(value.choices, " "));
    case ValueDescription::Kind::File:
        return " -F";
    case ValueDescription::Kind::Folder:
        return " -a '(__fish_complete_directories)'";
    }
    return {};
}

static void writeOption(const CommandDescription &command, const OptionDescription &option, std::ostream &out)
{
    out << rule(command);
    for (const std::string &name : option.names)
        out << (name.starts_with("--") ? " -l " + name.substr(2) : " -s " + name.substr(1));
    if (option.value) // -x is a value and no file
        out << (option.value->kind == ValueDescription::Kind::File ? " -r" : " -x") << proposal(*option.value);
    out << " -d " << fishQuoted(option.text) << '\n';
}

static void writeRules(const CommandDescription &command, std::ostream &out)
{
    out << "\n# " << command.path << '\n';
    for (const CommandDescription &below : command.commands)
        out << rule(command, "0") << " -a " << below.name << " -d " << fishQuoted(below.summary) << '\n';
    for (const OptionDescription &option : command.options)
        writeOption(command, option, out);
    std::size_t at = 0;
    for (const ArgumentDescription &argument : command.arguments) {
        if (argument.value.kind != ValueDescription::Kind::Text)
            out << rule(command, argument.isRepeated ? std::to_string(at) + " more" : std::to_string(at))
                << proposal(argument.value) << '\n';
        ++at;
    }
}

std::string fishCompletion(const CommandDescription &root)
{
    const std::vector<const CommandDescription *> commands = withDescendants(root);
    std::vector<std::string> paths;
    std::vector<std::string> valued;
    for (const CommandDescription *command : commands) {
        paths.push_back(fishQuoted(command->path));
        for (const OptionDescription &option : command->options) {
            for (const std::string &name : option.names) {
                if (option.value)
                    valued.push_back(fishQuoted(command->path + " " + name));
            }
        }
    }
    std::ostringstream out;
    out << "# Completes calls of varlo in fish 3.4 and later.\n"
           "\n"
           "# Whether the cursor stands in the command $argv[1] and, where $argv[2] is given, at its argument of that\n"
           "# number, counted from 0; with \"more\" behind it at any one from there on.\n"
           "function __varlo_at\n"
           "    set -l commands "
        << CLI::detail::join(paths, " \\\n        ")
        << "\n"
           "    set -l valued "
        << CLI::detail::join(valued, " \\\n        ") << R"(
    set -l command varlo
    set -l count 0
    set -l awaits no
    set -l only_arguments no
    set -l words (commandline -opc)
    set -e words[1]
    for word in $words
        if test $awaits = yes
            set awaits no
        else if test $only_arguments = yes
            set count (math $count + 1)
        else if test "$word" = --
            set only_arguments yes
        else if string match -q -r -- '^-.' "$word"
            contains -- "$command $word" $valued; and set awaits yes
        else if test $count -eq 0; and contains -- "$command $word" $commands
            set command "$command $word"
        else
            set count (math $count + 1)
        end
    end
    test "$command" = "$argv[1]"; or return
    test (count $argv) -eq 1; or test $count -eq $argv[2]; or test (count $argv) -eq 3 -a $count -gt $argv[2]
end

complete -c varlo -f
)";
    for (const CommandDescription *command : commands)
        writeRules(*command, out);
    return std::move(out).str();
}

} // namespace Varlo
