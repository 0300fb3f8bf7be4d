// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/describe/manualPages.h"

#include <algorithm>
#include <CLI/StringTools.hpp>
#include <sstream>

namespace Varlo {

// What holds for every subcommand and is no option of any.
constexpr const char *environmentAndFiles = R"(.Sh ENVIRONMENT
.Bl -tag -width Ds
.It Ev VARLO_API_KEY
The key for the model.
It stands over one that is stored.
.It Ev VARLO_ENDPOINT
The base address of the Messages interface.
An
.Fl -endpoint
option stands over it, and it stands over the preference.
Plain http is accepted for this machine's own addresses alone, since a key is never sent unencrypted.
.It Ev VARLO_MODEL
The model asked for at the endpoint.
A
.Fl -model
option stands over it, and it stands over the preference.
.It Ev XDG_CONFIG_HOME , XDG_DATA_HOME , XDG_STATE_HOME
Where the files below are kept.
They stand for
.Pa ~/.config ,
.Pa ~/.local/share
and
.Pa ~/.local/state
where they are unset or hold a relative path.
.It Ev NO_COLOR
No colours are printed where it is set.
They are left out as well where standard output is no terminal.
.El
.Sh FILES
.Bl -tag -width Ds
.It Pa $XDG_CONFIG_HOME/varlo/preferences.json
The preferences, the naming templates and the history.
.It Pa $XDG_CONFIG_HOME/varlo/preferences.damaged-1.json
Preferences that could not be read, set aside.
Varlo never changes or deletes it.
.It Pa $XDG_DATA_HOME/varlo/
Keys, where the session has no secret service.
.El
)";
constexpr const char *exitStatus = R"(.Sh EXIT STATUS
.Bl -tag -width Ds
.It 0
All went well.
.It 1
At least one file failed; the message names it.
.It 2
The call could not be understood; nothing was done.
.It 130
It was interrupted.
.El
)";

/// The text with nothing in it that roff would act upon. A word in backticks is set in bold.
static std::string escaped(const std::string &text)
{
    std::string result = text.starts_with(".") || text.starts_with("'") ? "\\&" : "";
    bool isCode = false;
    for (const char character : text) {
        switch (character) {
        case '\\':
            result += "\\e";
            break;
        case '-': // a plain one may become a typographic hyphen, which no shell knows
            result += "\\-";
            break;
        case '`':
            isCode = !isCode;
            result += isCode ? "\\fB" : "\\fR";
            break;
        default:
            result += character;
        }
    }
    return result;
}

/// A paragraph with each sentence on a line of its own, where roff sees that one ends.
static std::string paragraph(const std::string &text)
{
    std::string lines;
    std::size_t start = 0;
    for (std::size_t end = text.find(". "); end != std::string::npos; end = text.find(". ", start)) {
        lines += escaped(text.substr(start, end + 1 - start)) + '\n';
        start = end + 2;
    }
    const std::string last = text.substr(start);
    return lines + escaped(last) + (last.ends_with('.') ? "\n" : ".\n");
}

/// "Fl -language Ar LANGUAGE"
static std::string optionMacros(const OptionDescription &option, const std::string &name)
{
    return "Fl " + escaped(name.substr(1)) + (option.value ? " Ar " + escaped(option.value->placeholder) : "");
}

static std::string nameOfPage(const CommandDescription &command)
{
    std::string name = command.path;
    std::ranges::replace(name, ' ', '-');
    return name;
}

static void writeCall(const CommandDescription &command, std::ostream &out)
{
    out << ".Nm " << command.path << '\n';
    for (const OptionDescription &option : command.options) {
        const bool isHelp = option.names.back() == "--help" || option.names.back() == "--version";
        if (isHelp)
            continue;
        std::vector<std::string> names;
        for (const std::string &name : option.names)
            names.push_back(optionMacros(option, name));
        out << ".Op " << CLI::detail::join(names, " | ") << '\n';
    }
    for (const ArgumentDescription &argument : command.arguments) {
        out << (argument.isRequired ? ".Ar " : ".Op Ar ") << escaped(argument.value.placeholder)
            << (argument.isRepeated ? " ...\n" : "\n");
    }
}

static void writeChoices(const ValueDescription &value, std::ostream &out)
{
    if (value.choices.empty())
        return;
    out << "One of\n";
    for (std::size_t i = 0; i < value.choices.size(); ++i) {
        const bool isLast = i + 1 == value.choices.size();
        const bool isBeforeLast = i + 2 == value.choices.size();
        out << ".Cm " << escaped(value.choices[i]) << (isLast ? " .\n" : isBeforeLast ? "\nor\n" : " ,\n");
    }
}

static void writeOptionsAndArguments(const CommandDescription &command, std::ostream &out)
{
    if (command.options.empty() && command.arguments.empty())
        return;
    out << ".Bl -tag -width Ds\n";
    for (const ArgumentDescription &argument : command.arguments) {
        out << ".It Ar " << escaped(argument.value.placeholder) << (argument.isRepeated ? " ...\n" : "\n")
            << paragraph(argument.text);
        writeChoices(argument.value, out);
    }
    for (const OptionDescription &option : command.options) {
        std::vector<std::string> names;
        for (const std::string &name : option.names)
            names.push_back(optionMacros(option, name));
        out << ".It " << CLI::detail::join(names, " , ") << '\n' << paragraph(option.text);
        if (option.value)
            writeChoices(*option.value, out);
        if (!option.defaultValue.empty())
            out << "The default is\n.Cm " << escaped(option.defaultValue) << " .\n";
    }
    out << ".El\n";
}

static void writeParagraphs(const CommandDescription &command, std::ostream &out)
{
    for (const std::string &text : command.paragraphs)
        out << ".Pp\n" << paragraph(text);
}

static void writeExamples(const CommandDescription &command, std::ostream &out)
{
    std::vector<std::string> lines;
    for (const CommandDescription *described : withDescendants(command))
        lines.insert(lines.end(), described->examples.begin(), described->examples.end());
    if (lines.empty())
        return;
    out << ".Sh EXAMPLES\n.Bd -literal -offset indent\n";
    for (const std::string &line : lines)
        out << escaped(line) << '\n';
    out << ".Ed\n";
}

static void writeHead(
    const CommandDescription &command, const std::string &date, const std::string &version, std::ostream &out)
{
    std::string title = nameOfPage(command);
    const std::string summary = command.summary.substr(0, command.summary.find_last_not_of('.') + 1);
    std::ranges::transform(title, title.begin(),
        [](char letter) { return letter >= 'a' && letter <= 'z' ? static_cast<char>(letter - 'a' + 'A') : letter; });
    out << ".Dd " << date << "\n.Dt " << title << " 1\n.Os \"Varlo " << version << "\"\n.Sh NAME\n.Nm "
        << nameOfPage(command) << "\n.Nd " << escaped(summary) << '\n';
}

static std::string pageOfSubcommand(const CommandDescription &command, const CommandDescription &root,
    const std::string &date, const std::string &version)
{
    std::ostringstream out;
    writeHead(command, date, version, out);
    out << ".Sh SYNOPSIS\n";
    for (const CommandDescription *call : withDescendants(command))
        writeCall(*call, out);
    out << ".Sh DESCRIPTION\n" << paragraph(command.summary);
    writeParagraphs(command, out);
    writeOptionsAndArguments(command, out);
    for (const CommandDescription *below : withDescendants(command)) {
        if (below == &command)
            continue;
        out << ".Ss " << escaped(below->path) << '\n' << paragraph(below->summary);
        writeParagraphs(*below, out);
        writeOptionsAndArguments(*below, out);
    }
    out << exitStatus;
    writeExamples(command, out);
    out << ".Sh SEE ALSO\n.Xr " << root.name << " 1\n";
    return std::move(out).str();
}

static std::string pageOfRoot(const CommandDescription &root, const std::string &date, const std::string &version)
{
    std::ostringstream out;
    writeHead(root, date, version, out);
    out << ".Sh SYNOPSIS\n";
    writeCall(root, out);
    out << ".Nm " << root.path << "\n.Ar SUBCOMMAND\n.Op Ar ARGUMENT ...\n.Sh DESCRIPTION\n" << paragraph(root.summary);
    writeParagraphs(root, out);
    writeOptionsAndArguments(root, out);
    out << ".Ss Subcommands\n"
           "A page of its own tells more of each.\n"
           ".Bl -tag -width Ds\n";
    for (const CommandDescription &command : root.commands)
        out << ".It Cm " << command.name << '\n' << paragraph(command.summary);
    out << ".El\n" << environmentAndFiles << exitStatus;
    writeExamples(root, out);
    out << ".Sh SEE ALSO\n";
    std::vector<std::string> pages;
    for (const CommandDescription &command : root.commands)
        pages.push_back(nameOfPage(command));
    std::ranges::sort(pages);
    for (const std::string &page : pages)
        out << ".Xr " << page << (page == pages.back() ? " 1\n" : " 1 ,\n");
    return std::move(out).str();
}

std::map<std::string, std::string> manualPages(
    const CommandDescription &root, const std::string &date, const std::string &version)
{
    std::map<std::string, std::string> pages { { nameOfPage(root) + ".1", pageOfRoot(root, date, version) } };
    for (const CommandDescription &command : root.commands)
        pages.emplace(nameOfPage(command) + ".1", pageOfSubcommand(command, root, date, version));
    return pages;
}

} // namespace Varlo
