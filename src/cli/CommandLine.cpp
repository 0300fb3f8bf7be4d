// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/CommandLine.h"

#include "cli/closestWord.h"
#include <algorithm>
#include <CLI/CLI.hpp>
#include <functional>

namespace Varlo {

// What CLI11 fills in. One call has one subcommand, so they may share what they have in common.
struct CommandLine::Values {
    std::vector<std::string> files;
    std::string files0From;
    std::string imageFolder;
    std::string language = "auto";
    std::string templateId;
    bool tags = false;
    bool offline = false;
    std::string model;
    std::string endpoint;
    bool json = false;
    bool yes = false;
    bool dryRun = false;
    bool notify = false;
    std::string folder;
    bool includeExisting = false;
    std::string search;
    int last = 1;
    std::string id;
    std::vector<std::string> ids;
    std::string name;
    std::vector<std::string> fields;
    std::string key;
    std::string value;
    std::function<Command()> command = [] { return OpenCommand {}; }; // of the subcommand that was named
};

static std::vector<std::filesystem::path> toPaths(const std::vector<std::string> &arguments)
{
    return { arguments.begin(), arguments.end() };
}

/// Absent where the option was not given at all, which is something else than an empty value.
static std::optional<QString> givenText(const CLI::App &app, const std::string &option, const std::string &value)
{
    return app.count(option) > 0 ? std::optional(QString::fromStdString(value)) : std::nullopt;
}

static const std::vector<std::string> &fieldWords()
{
    static const std::vector<std::string> words = [] {
        std::vector<std::string> result;
        for (const TemplateField field : allTemplateFields)
            result.push_back(rawValue(field).toStdString());
        return result;
    }();
    return words;
}

static QList<TemplateField> toFields(const std::vector<std::string> &words)
{
    QList<TemplateField> fields;
    for (const std::string &word : words) {
        if (const auto field = templateField(QString::fromStdString(word)))
            fields.append(*field);
    }
    return fields;
}

/// Any number of arguments, as they stand. Where CLI11 may take more than it expects, "[2024]" is a list to it, and a
/// folder of that name would lose its brackets; so it expects as many as there can be.
static CLI::Option *addArguments(
    CLI::App &app, const std::string &name, std::vector<std::string> &words, const std::string &description)
{
    constexpr int many = CLI::detail::expected_max_vector_size;
    return app.add_option(name, words, description)
        ->expected(many, many)
        ->allow_extra_args(false)
        ->multi_option_policy(CLI::MultiOptionPolicy::TakeAll);
}

CommandLine::CommandLine()
    : m_app(std::make_unique<CLI::App>("Renames documents and photos after what is in them."))
    , m_values(std::make_unique<Values>())
{
    m_app->name("varlo");
    m_app->set_version_flag("--version", "varlo " VARLO_VERSION, "Print the version");
    m_app->set_help_flag("-h,--help", "Print this help");
    // At most one subcommand: otherwise a file called "key" behind "suggest" would be taken for another one.
    m_app->require_subcommand(0, 1);
    m_app->footer("Without a subcommand the window opens. `varlo SUBCOMMAND --help` tells more.");
    describeNaming();
    describeHistory();
    describeFolders();
    describeOpenAndExtract();
    describeTemplates();
    describeSettings();
}

CommandLine::~CommandLine() = default;

CLI::App *CommandLine::addCommand(CLI::App &parent, const std::string &name, const std::string &summary)
{
    CLI::App *command = parent.add_subcommand(name, summary);
    command->set_help_flag("-h,--help", "Print this help");
    command->footer(""); // CLI11 hands the parent's down
    return command;
}

void CommandLine::addJsonFlag(CLI::App &app)
{
    app.add_flag("--json", m_values->json, "Print one JSON object a line, each as it completes");
}

void CommandLine::addNamingOptions(CLI::App &app)
{
    Values &values = *m_values;
    app.add_option("--language", values.language, "The language of the names")
        ->type_name("LANGUAGE")
        ->check(CLI::IsMember({ "auto", "system", "en", "es", "nl" }))
        ->capture_default_str();
    app.add_option("--template", values.templateId, "Follow the naming template with this id (see `varlo templates`)")
        ->type_name("ID");
    app.add_flag("--tags,!--no-tags", values.tags, "Ask for keyword tags as well, or do not (default: the preference)");
    app.add_flag(
        "--offline", values.offline, "Use the built-in rules in place of the hosted model: no key, no network");
    app.add_option("--model", values.model, "The model asked for at the endpoint")->type_name("ID");
    app.add_option("--endpoint", values.endpoint, "Base address of the Messages interface")->type_name("URL");
    addJsonFlag(app);
}

void CommandLine::addFileArguments(CLI::App &app)
{
    Values &values = *m_values;
    app.add_option("--files0-from", values.files0From, "Take more paths, each ended by NUL, from a file or from -")
        ->type_name("FILE");
    addArguments(app, "FILE", values.files, "Files, and folders to look through");
}

NamingOptions CommandLine::namingOptions(const CLI::App &app) const
{
    const Values &values = *m_values;
    NamingOptions options;
    options.language = filenameLanguageOption(QString::fromStdString(values.language)).value_or(FilenameLanguage::Auto);
    options.templateId = givenText(app, "--template", values.templateId);
    if (app.count("--tags") > 0)
        options.tags = values.tags;
    options.offline = values.offline;
    options.model = givenText(app, "--model", values.model);
    options.endpoint = givenText(app, "--endpoint", values.endpoint);
    return options;
}

FileArguments CommandLine::fileArguments(const CLI::App &app) const
{
    FileArguments arguments { toPaths(m_values->files), {} };
    if (app.count("--files0-from") > 0)
        arguments.files0From = m_values->files0From;
    else if (arguments.files.empty())
        throw CLI::RequiredError("FILE");
    return arguments;
}

void CommandLine::describeNaming()
{
    Values &values = *m_values;
    CLI::App *suggest = addCommand(*m_app, "suggest", "Suggest names; changes nothing on disk");
    addNamingOptions(*suggest);
    addFileArguments(*suggest);
    suggest->footer(
        "With --json each object has path, status, name (without the extension; empty where there is none),\n"
        "extension and tags, and message where the status is failed.\n"
        "\n"
        "Examples:\n"
        "  # Names for what a scanner left in a folder\n"
        "  varlo suggest ~/Scans\n"
        "  # The photos of this year, in Dutch, without the network\n"
        "  find ~/Photos -newermt 2026-01-01 -print0 |\n"
        "      varlo suggest --offline --language nl --files0-from -");
    suggest->callback([this, &values, suggest] {
        const SuggestCommand command { namingOptions(*suggest), fileArguments(*suggest), values.json };
        values.command = [command] { return command; };
    });

    CLI::App *rename = addCommand(*m_app, "rename", "Suggest names, show the plan, ask, and rename");
    addNamingOptions(*rename);
    addFileArguments(*rename);
    rename->add_flag("--yes", values.yes, "Do not ask; a question for access to a folder is declined");
    rename->add_flag("-n,--dry-run", values.dryRun, "Show the plan and change nothing");
    rename->add_flag(
        "--notify", values.notify, "Tell the outcome in a notification that can undo it; file managers use this");
    rename->footer("With --json each object is as for suggest; a renamed file has newPath as well.\n"
                   "With --notify the call ends when the notification is closed, or after ten minutes.\n"
                   "\n"
                   "Examples:\n"
                   "  # What would happen\n"
                   "  varlo rename --dry-run ~/Scans\n"
                   "  # Rename, tag, and take it all back\n"
                   "  varlo rename --tags ~/Scans\n"
                   "  varlo undo --last 12");
    rename->callback([this, &values, rename] {
        const RenameCommand command { namingOptions(*rename), fileArguments(*rename), values.json, values.yes,
            values.dryRun, values.notify };
        values.command = [command] { return command; };
    });

    CLI::App *watch = addCommand(*m_app, "watch", "Suggest names for new files of a folder as they arrive");
    addNamingOptions(*watch);
    watch->add_flag("--include-existing", values.includeExisting, "Begin with the files that are there already");
    watch->add_flag("--notify", values.notify, "Tell of names that are ready in notifications that open the window");
    watch->add_option("FOLDER", values.folder, "Which folder; what lies in folders below it is left alone")->required();
    watch->footer(
        "Nothing is renamed. A file is taken once the folder has been quiet for 0.8 seconds. Ctrl-C ends the watch.\n"
        "What other machines put on a network drive is not noticed. JSON objects are as for suggest.\n"
        "\n"
        "A service of the user's own watches a folder at every login:\n"
        "`systemctl --user enable --now \"varlo-watch@$(systemd-escape --path ~/Scans).service\"`.\n"
        "\n"
        "Examples:\n"
        "  # Names for whatever the scanner leaves\n"
        "  varlo watch ~/Scans\n"
        "  # As one JSON object a line, for a script, and without the network\n"
        "  varlo watch --offline --include-existing --json ~/Downloads");
    watch->callback([this, &values, watch] {
        const WatchCommand command { namingOptions(*watch), values.folder, values.includeExisting, values.json,
            values.notify };
        values.command = [command] { return command; };
    });
}

void CommandLine::describeHistory()
{
    Values &values = *m_values;
    CLI::App *history = addCommand(*m_app, "history", "Past renames, newest first");
    history->require_subcommand(0, 1);
    history->add_option("--search", values.search, "Only renames with this in the old or the new path")
        ->type_name("TEXT");
    addJsonFlag(*history);
    CLI::App *clear = addCommand(*history, "clear", "Forget every rename; no file changes");
    clear->add_flag("--yes", values.yes, "Do not ask");
    history->callback([&values, history, clear] {
        if (history->got_subcommand(clear))
            values.command = [&values] { return HistoryClearCommand { values.yes }; };
        else
            values.command = [&values] {
                return HistoryCommand { QString::fromStdString(values.search), values.json };
            };
    });

    CLI::App *undo = addCommand(*m_app, "undo", "Take renames back: the latest that stands, those named, or several");
    CLI::Option *last = undo->add_option("--last", values.last, "So many, the newest first")
                            ->type_name("N")
                            ->check(CLI::PositiveNumber);
    addJsonFlag(*undo);
    addArguments(*undo, "ID", values.ids, "Which ones, by their ids in `varlo history --json`")->excludes(last);
    undo->callback([&values] {
        values.command = [&values] {
            UndoCommand command { {}, values.last, values.json };
            for (const std::string &id : values.ids)
                command.ids.append(QString::fromStdString(id));
            return command;
        };
    });
}

void CommandLine::describeFolders()
{
    Values &values = *m_values;
    CLI::App *folders = addCommand(*m_app, "folders", "Folders that Varlo may rename in");
    folders->require_subcommand(0, 1);
    folders->add_flag("--json", values.json, "Print one JSON object a line");
    CLI::App *list = addCommand(*folders, "list", "Print every folder");
    list->add_flag("--json", values.json, "Print one JSON object a line");
    CLI::App *add = addCommand(*folders, "add", "Allow renaming in these folders and below");
    addArguments(*add, "FOLDER", values.files, "Which folders")->required();
    CLI::App *remove = addCommand(*folders, "remove", "Withdraw that");
    addArguments(*remove, "FOLDER", values.files, "Which folders")->required();
    folders->callback([&values, folders, add, remove] {
        if (folders->got_subcommand(add))
            values.command = [&values] { return FoldersAddCommand { toPaths(values.files) }; };
        else if (folders->got_subcommand(remove))
            values.command = [&values] { return FoldersRemoveCommand { toPaths(values.files) }; };
        else
            values.command = [&values] { return FoldersListCommand { values.json }; };
    });
}

void CommandLine::describeOpenAndExtract()
{
    Values &values = *m_values;
    CLI::App *open = addCommand(*m_app, "open", "Open the window with these files in the list");
    addArguments(*open, "FILE", values.files, "Files and folders");
    open->callback([&values] { values.command = [&values] { return OpenCommand { toPaths(values.files) }; }; });

    CLI::App *extract = addCommand(*m_app, "extract", "Print what the model would be given for each file");
    addJsonFlag(*extract);
    extract->add_option("--image-dir", values.imageFolder, "Write each picture there, as a JPEG with a new name")
        ->type_name("DIR");
    addArguments(*extract, "FILE", values.files, "Files")->required();
    extract->footer(
        "With --json each object has path and result: content, unreadable, noTextFound or notSupportedYet.\n"
        "Content has kind; a text has text; an image has mimeType, byteCount, width, height, metadata where\n"
        "something is known, and imageFile with --image-dir. Unreadable has message.\n"
        "\n"
        "Examples:\n"
        "  # Whether there is text in a scan at all\n"
        "  varlo extract scan.pdf\n"
        "  # The pictures as the model would see them\n"
        "  varlo extract --image-dir seen ~/Photos/*.heic");
    extract->callback([&values, extract] {
        values.command = [&values, extract] {
            ExtractCommand command { toPaths(values.files), values.json, {} };
            if (extract->count("--image-dir") > 0)
                command.imageFolder = values.imageFolder;
            return command;
        };
    });
}

void CommandLine::describeTemplates()
{
    Values &values = *m_values;
    CLI::App *templates = addCommand(*m_app, "templates", "Naming templates: the structure that names follow");
    templates->require_subcommand(0, 1);
    templates->add_flag("--json", values.json, "Print one JSON object a line");
    templates->footer("Examples:\n"
                      "  # A structure of one's own, used at once\n"
                      "  id=$(varlo templates add --name Bills date vendor amount)\n"
                      "  varlo suggest --template \"$id\" ~/Bills");
    const auto list = [&values] { values.command = [&values] { return TemplatesListCommand { values.json }; }; };

    CLI::App *listing = addCommand(*templates, "list", "Print every template");
    listing->add_flag("--json", values.json, "Print one JSON object a line");

    CLI::App *add = addCommand(*templates, "add", "Make a template of these fields and print its id");
    add->add_option("--name", values.name, "The name it is shown under")->type_name("NAME");
    addArguments(*add, "FIELD", values.fields, "The fields in their order")
        ->required()
        ->check(CLI::IsMember(fieldWords()));

    CLI::App *edit = addCommand(*templates, "edit", "Change a template's name or fields");
    edit->add_option("ID", values.id, "Which template")->required();
    edit->add_option("--name", values.name, "The name it is shown under")->type_name("NAME");
    addArguments(*edit, "FIELD", values.fields, "The new fields in their order")->check(CLI::IsMember(fieldWords()));

    CLI::App *remove = addCommand(*templates, "remove", "Remove a template of your own");
    remove->add_option("ID", values.id, "Which template")->required();

    // The callbacks of subcommands run before their parent's, so the parent can tell what was named.
    templates->callback([&values, list, templates, add, edit, remove] {
        if (templates->got_subcommand(add)) {
            values.command = [&values] {
                return TemplatesAddCommand { QString::fromStdString(values.name), toFields(values.fields) };
            };
        } else if (templates->got_subcommand(edit)) {
            values.command = [&values, edit] {
                return TemplatesEditCommand { QString::fromStdString(values.id),
                    givenText(*edit, "--name", values.name), toFields(values.fields) };
            };
        } else if (templates->got_subcommand(remove)) {
            values.command = [&values] { return TemplatesRemoveCommand { QString::fromStdString(values.id) }; };
        } else {
            list();
        }
    });
}

void CommandLine::describeSettings()
{
    Values &values = *m_values;
    CLI::App *config = addCommand(*m_app, "config", "The preferences");
    config->require_subcommand(0, 1);
    config->footer("Examples:\n"
                   "  varlo config set uiLanguage nl");
    addCommand(*config, "list", "Print every preference and its value");
    CLI::App *get = addCommand(*config, "get", "Print one preference");
    get->add_option("KEY", values.key, "Which preference")->required();
    CLI::App *set = addCommand(*config, "set", "Change one preference");
    set->add_option("KEY", values.key, "Which preference")->required();
    set->add_option("VALUE", values.value, "Its new value")->required();
    config->callback([&values, config, get, set] {
        if (config->got_subcommand(get)) {
            values.command = [&values] { return ConfigGetCommand { QString::fromStdString(values.key) }; };
        } else if (config->got_subcommand(set)) {
            values.command = [&values] {
                return ConfigSetCommand { QString::fromStdString(values.key), values.value };
            };
        } else {
            values.command = [] { return ConfigListCommand {}; };
        }
    });

    CLI::App *key = addCommand(*m_app, "key", "The API key of the model");
    key->require_subcommand(0, 1);
    key->footer("Examples:\n"
                "  # From a password manager, without showing it\n"
                "  pass show anthropic | varlo key set\n"
                "  # For a server of one's own\n"
                "  varlo key --endpoint http://localhost:8080 set");
    key->add_option("--endpoint", values.endpoint, "Base address that the key is for")->type_name("URL");
    addCommand(*key, "status", "Tell whether a key is stored");
    CLI::App *keySet = addCommand(*key, "set", "Store a key, read from standard input or a hidden prompt");
    CLI::App *keyRemove = addCommand(*key, "remove", "Remove the stored key");
    key->callback([&values, key, keySet, keyRemove] {
        const KeyAction action = key->got_subcommand(keySet) ? KeyAction::Set
            : key->got_subcommand(keyRemove)                 ? KeyAction::Remove
                                                             : KeyAction::Status;
        values.command = [&values, key, action] {
            return KeyCommand { action, givenText(*key, "--endpoint", values.endpoint) };
        };
    });

    CLI::App *formats = addCommand(*m_app, "formats", "Print the supported formats");
    formats->callback([&values] { values.command = [] { return FormatsCommand {}; }; });

    CLI::App *doctor = addCommand(*m_app, "doctor", "Tell what works on this machine, and how to mend what does not");
    doctor->add_flag("--json", values.json, "Print one JSON object a line");
    doctor->add_option("--endpoint", values.endpoint, "Base address of the Messages interface")->type_name("URL");
    doctor->callback([&values, doctor] {
        values.command = [&values, doctor] {
            return DoctorCommand { values.json, givenText(*doctor, "--endpoint", values.endpoint) };
        };
    });
}

/// The subcommand that was being described when the parser gave up.
static const CLI::App &innermostCommand(const CLI::App &app)
{
    const auto named = app.get_subcommands();
    return named.empty() ? app : innermostCommand(*named.front());
}

static std::vector<std::string> knownWords(const CLI::App &app)
{
    std::vector<std::string> words;
    for (const CLI::App *command : app.get_subcommands([](const CLI::App *) { return true; }))
        words.push_back(command->get_name());
    for (const CLI::Option *option : app.get_options()) {
        for (const std::string &longName : option->get_lnames())
            words.push_back("--" + longName);
    }
    return words;
}

static std::string commandPath(const CLI::App &app)
{
    return app.get_parent() ? commandPath(*app.get_parent()) + " " + app.get_name() : app.get_name();
}

static UsageError unknownWord(const CLI::App &app)
{
    const CLI::App &command = innermostCommand(app);
    const std::vector<std::string> rest = app.remaining(true); // behind "--" it is a parent that they are left to
    const auto unknown = std::ranges::find_if(rest, [](const std::string &left) { return left != "--"; });
    const std::string word = unknown == rest.end() ? std::string() : *unknown;
    std::string message = "unknown " + std::string(word.starts_with("-") ? "option" : "word") + " \"" + word + "\"";
    if (const auto closest = closestWord(word, knownWords(command)))
        message += "; did you mean \"" + *closest + "\"?";
    return { message + "\nSee `" + commandPath(command) + " --help`." };
}

Result<Command, UsageError> CommandLine::parse(std::span<const char *const> arguments)
{
    // CLI11 takes them from the back.
    std::vector<std::string> reversed(arguments.rbegin(), arguments.rend());
    try {
        m_app->parse(std::move(reversed));
        return m_values->command();
    } catch (const CLI::CallForHelp &) {
        return ShowTextCommand { innermostCommand(*m_app).help() };
    } catch (const CLI::CallForVersion &version) {
        return ShowTextCommand { std::string(version.what()) + "\n" };
    } catch (const CLI::ExtrasError &) {
        return tl::unexpected(unknownWord(*m_app));
    } catch (const CLI::ParseError &error) {
        return tl::unexpected(
            UsageError { std::string(error.what()) + "\nSee `" + commandPath(innermostCommand(*m_app)) + " --help`." });
    }
}

} // namespace Varlo
