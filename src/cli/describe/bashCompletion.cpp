// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/describe/completions.h"

#include <CLI/StringTools.hpp>
#include <sstream>

namespace Varlo {

std::string shellQuoted(const std::string &text)
{
    std::string quoted = "'";
    for (const char character : text)
        quoted += character == '\'' ? std::string("'\\''") : std::string(1, character);
    return quoted + "'";
}

static std::string assignment(const ValueDescription &value)
{
    switch (value.kind) {
    case ValueDescription::Kind::Text:
        return "kind=text";
    case ValueDescription::Kind::Choice:
        return "kind=choice choices=" + shellQuoted(CLI::detail::join(value.choices, " "));
    case ValueDescription::Kind::File:
        return "kind=file";
    case ValueDescription::Kind::Folder:
        return "kind=folder";
    }
    return {};
}

static void writeCommand(const CommandDescription &command, std::ostream &out)
{
    std::vector<std::string> commands;
    for (const CommandDescription &below : command.commands)
        commands.push_back(below.name);
    std::vector<std::string> options;
    for (const OptionDescription &option : command.options)
        options.insert(options.end(), option.names.begin(), option.names.end());
    out << "    " << shellQuoted(command.path) << ")\n"
        << "        commands=" << shellQuoted(CLI::detail::join(commands, " ")) << '\n'
        << "        options=" << shellQuoted(CLI::detail::join(options, " ")) << '\n'
        << "        ;;\n";
}

static void writeOptionValues(const CommandDescription &command, std::ostream &out)
{
    for (const OptionDescription &option : command.options) {
        if (!option.value)
            continue;
        std::vector<std::string> patterns;
        for (const std::string &name : option.names)
            patterns.push_back(shellQuoted(command.path + " " + name));
        out << "    " << CLI::detail::join(patterns, " | ") << ") " << assignment(*option.value) << " ;;\n";
    }
}

static void writeArguments(const CommandDescription &command, std::ostream &out)
{
    std::size_t at = 0;
    for (const ArgumentDescription &argument : command.arguments) {
        const std::string number = argument.isRepeated ? "'/'*" : shellQuoted("/" + std::to_string(at++));
        out << "    " << shellQuoted(command.path) << number << ") " << assignment(argument.value) << " ;;\n";
    }
}

std::string bashCompletion(const CommandDescription &root)
{
    const std::vector<const CommandDescription *> commands = withDescendants(root);
    std::ostringstream out;
    out << R"(# Completes calls of varlo in bash 4.4 and later.

# Sets commands and options to the words that the command $1 knows, parted by spaces.
_varlo_words() {
    case $1 in
)";
    for (const CommandDescription *command : commands)
        writeCommand(*command, out);
    out << R"(    *) return 1 ;;
    esac
}

# Sets kind and choices to what the option is followed by: $1 is "COMMAND OPTION". kind is empty for a flag.
_varlo_option() {
    kind='' choices=''
    case $1 in
)";
    for (const CommandDescription *command : commands)
        writeOptionValues(*command, out);
    out << R"(    esac
}

# Sets kind and choices to what the argument is: $1 is "COMMAND/NUMBER", counted from 0. kind is empty for none.
_varlo_argument() {
    kind='' choices=''
    case $1 in
)";
    for (const CommandDescription *command : commands)
        writeArguments(*command, out);
    out << R"(    esac
}

_varlo() {
    local IFS=$' \t\n' path=varlo count=0 kind='' choices='' onlyArguments='' commands options i word
    # Bash parts "--language=en" into three words, as if "=" were a space.
    local -a words=()
    for ((i = 1; i <= COMP_CWORD; i++)); do
        if [[ ${COMP_WORDS[i]} == '=' && ${COMP_WORDS[i - 1]} == --?* ]]; then
            ((i == COMP_CWORD)) && words+=('')
        else
            words+=("${COMP_WORDS[i]}")
        fi
    done
    local current=${words[-1]}
    unset 'words[-1]'

    _varlo_words "$path"
    for word in "${words[@]}"; do
        if [[ $kind ]]; then
            kind=''
        elif [[ ! $onlyArguments && $word == -- ]]; then
            onlyArguments=1
        elif [[ ! $onlyArguments && $word == -?* ]]; then
            _varlo_option "$path $word"
        elif [[ ! $onlyArguments && $count == 0 && " $commands " == *" $word "* ]]; then
            path+=" $word"
            _varlo_words "$path"
        else
            ((++count))
        fi
    done

    COMPREPLY=()
    if [[ ! $kind ]]; then
        if [[ ! $onlyArguments && $current == -* ]]; then
            mapfile -t COMPREPLY < <(compgen -W "$options" -- "$current")
            return
        fi
        _varlo_argument "$path/$count"
        if [[ ! $onlyArguments && $count == 0 ]]; then
            mapfile -t COMPREPLY < <(compgen -W "$commands" -- "$current")
        fi
    fi
    # Readline itself quotes the names of files and knows "~".
    case $kind in
    choice) mapfile -t -O "${#COMPREPLY[@]}" COMPREPLY < <(compgen -W "$choices" -- "$current") ;;
    file) compopt -o default ;;
    folder) compopt -o dirnames ;;
    esac
}

complete -F _varlo varlo
)";
    return std::move(out).str();
}

} // namespace Varlo
