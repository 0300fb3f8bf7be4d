// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/describe/completions.h"

#include <algorithm>
#include <CLI/StringTools.hpp>
#include <sstream>

namespace Varlo {

/// "varlo templates add" as "_varlo_templates_add".
static std::string functionName(const CommandDescription &command)
{
    std::string name = "_" + command.path;
    std::ranges::replace(name, ' ', '_');
    return name;
}

/// The text as it may stand in an entry of _arguments, where brackets and colons part what is said.
static std::string escaped(const std::string &text)
{
    std::string result;
    for (const char character : text) {
        if (std::string_view("[]:\\").find(character) != std::string_view::npos)
            result += '\\';
        result += character;
    }
    return result;
}

/// ":MESSAGE:ACTION"; a single space as the action shows the message and completes nothing.
static std::string valueEntry(const ValueDescription &value)
{
    const std::string message = ":" + escaped(value.placeholder) + ":";
    switch (value.kind) {
    case ValueDescription::Kind::Text:
        return message + " ";
    case ValueDescription::Kind::Choice:
        return message + "(" + CLI::detail::join(value.choices, " ") + ")";
    case ValueDescription::Kind::File:
        return message + "_files";
    case ValueDescription::Kind::Folder:
        return message + "_files -/";
    }
    return {};
}

static void writeOption(const OptionDescription &option, std::ostream &out)
{
    const std::string others = "(" + CLI::detail::join(option.names, " ") + ")";
    for (const std::string &name : option.names) {
        std::string entry = others + name;
        if (option.value)
            entry += name.starts_with("--") ? "=" : "+";
        entry += "[" + escaped(option.text) + "]";
        if (option.value)
            entry += valueEntry(*option.value);
        out << "    " << shellQuoted(entry) << " \\\n";
    }
}

static void writeCommands(const CommandDescription &command, std::ostream &out)
{
    out << "    '1: :->command' \\\n"
           "    '*:: :->words' && return\n\n"
           "  case $state in\n"
           "  (command)\n"
           "    local -a commands=(\n";
    for (const CommandDescription &below : command.commands)
        out << "      " << shellQuoted(below.name + ":" + below.summary) << '\n';
    out << "    )\n"
           "    _describe -t commands command commands\n"
           "    ;;\n"
           "  (words)\n"
           "    curcontext=\"${curcontext%:*:*}:"
        << functionName(command).substr(1)
        << "-$words[1]:\"\n"
           "    case $words[1] in\n";
    for (const CommandDescription &below : command.commands)
        out << "    (" << below.name << ") " << functionName(below) << " ;;\n";
    out << "    esac\n"
           "    ;;\n"
           "  esac\n";
}

static void writeFunction(const CommandDescription &command, std::ostream &out)
{
    out << '\n' << functionName(command) << "() {\n";
    if (!command.commands.empty())
        out << "  local curcontext=$curcontext state line\n"
               "  local -A opt_args\n";
    out << "  _arguments -C -s -S \\\n";
    for (const OptionDescription &option : command.options)
        writeOption(option, out);
    for (const ArgumentDescription &argument : command.arguments)
        out << "    " << shellQuoted((argument.isRepeated ? "*" : "") + valueEntry(argument.value)) << " \\\n";
    if (command.commands.empty())
        out << "    && return\n";
    else
        writeCommands(command, out);
    out << "}\n";
}

std::string zshCompletion(const CommandDescription &root)
{
    std::ostringstream out;
    out << "#compdef varlo\n"
           "# Completes calls of varlo in zsh.\n";
    for (const CommandDescription *command : withDescendants(root))
        writeFunction(*command, out);
    // The file is loaded at the first completion, as the body of the function that it is named for.
    out << "\n_varlo \"$@\"\n";
    return std::move(out).str();
}

} // namespace Varlo
