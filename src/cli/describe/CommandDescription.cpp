// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/describe/CommandDescription.h"

#include <CLI/CLI.hpp>

namespace Varlo {

/// The words of a check that allows only some: CLI11 tells them in the type's name alone, as "LANGUAGE:{auto,en}".
static std::vector<std::string> choicesOf(const CLI::Option &option)
{
    const std::string type = option.get_type_name();
    const std::size_t start = type.find(":{");
    const std::size_t end = type.find('}', start);
    if (start == std::string::npos || end == std::string::npos)
        return {};
    return CLI::detail::split(type.substr(start + 2, end - start - 2), ',');
}

static ValueDescription describeValue(const CLI::Option &option, const std::string &placeholder)
{
    ValueDescription value { placeholder, ValueDescription::Kind::Text, choicesOf(option) };
    if (!value.choices.empty())
        value.kind = ValueDescription::Kind::Choice;
    else if (placeholder == "FILE")
        value.kind = ValueDescription::Kind::File;
    else if (placeholder == "FOLDER" || placeholder == "DIR")
        value.kind = ValueDescription::Kind::Folder;
    return value;
}

static OptionDescription describeOption(const CLI::Option &option)
{
    OptionDescription description;
    for (const std::string &name : option.get_snames())
        description.names.push_back("-" + name);
    for (const std::string &name : option.get_lnames())
        description.names.push_back("--" + name);
    if (option.get_items_expected_max() > 0) {
        const std::string type = option.get_type_name();
        description.value = describeValue(option, type.substr(0, type.find(':')));
        description.defaultValue = option.get_default_str();
    }
    description.text = option.get_description();
    return description;
}

static ArgumentDescription describeArgument(const CLI::Option &option)
{
    return { describeValue(option, option.get_single_name()), option.get_description(), option.get_required(),
        option.get_items_expected_max() > 1 };
}

static void describeFooter(const std::string &footer, CommandDescription &description)
{
    bool isParagraphOpen = false;
    bool areExamples = false;
    for (const std::string &line : CLI::detail::split(footer, '\n')) {
        const std::string trimmed = CLI::detail::trim_copy(line);
        areExamples = areExamples || trimmed == "Examples:";
        if (trimmed.empty() || trimmed == "Examples:") {
            isParagraphOpen = false;
        } else if (areExamples) {
            description.examples.push_back(line.starts_with("  ") ? line.substr(2) : line);
        } else if (isParagraphOpen) {
            description.paragraphs.back() += " " + trimmed;
        } else {
            description.paragraphs.push_back(trimmed);
            isParagraphOpen = true;
        }
    }
}

static CommandDescription describeBelow(const CLI::App &app, const std::string &parentPath)
{
    CommandDescription description;
    description.name = app.get_name();
    description.path = parentPath + description.name;
    description.summary = app.get_description();
    describeFooter(app.get_footer(), description);
    for (const CLI::Option *option : app.get_options()) {
        if (option->get_group().empty())
            continue;
        if (option->get_positional())
            description.arguments.push_back(describeArgument(*option));
        else
            description.options.push_back(describeOption(*option));
    }
    for (const CLI::App *command : app.get_subcommands([](const CLI::App *) { return true; })) {
        if (!command->get_group().empty())
            description.commands.push_back(describeBelow(*command, description.path + " "));
    }
    return description;
}

CommandDescription describe(const CLI::App &app) { return describeBelow(app, {}); }

static void append(const CommandDescription &command, std::vector<const CommandDescription *> &commands)
{
    commands.push_back(&command);
    for (const CommandDescription &below : command.commands)
        append(below, commands);
}

std::vector<const CommandDescription *> withDescendants(const CommandDescription &command)
{
    std::vector<const CommandDescription *> commands;
    append(command, commands);
    return commands;
}

} // namespace Varlo
