// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "templates/FilenameLanguage.h"
#include "templates/NameTemplate.h"
#include <filesystem>
#include <optional>
#include <QString>
#include <QStringList>
#include <string>
#include <variant>
#include <vector>

namespace Varlo {

/// How names are asked for: what `suggest`, `rename` and `watch` have in common.
struct NamingOptions {
    FilenameLanguageOption language = FilenameLanguage::Auto;
    std::optional<QString> templateId;
    std::optional<bool> tags; ///< absent: as the preference says
    bool offline = false; ///< the built-in namer: no key, no network
    std::optional<QString> model;
    std::optional<QString> endpoint;
};

/// The files a command is about.
struct FileArguments {
    std::vector<std::filesystem::path> files; ///< as given, relative ones too
    std::optional<std::filesystem::path> files0From; ///< more of them, each ended by NUL, in a file or in "-"
};

struct OpenCommand {
    std::vector<std::filesystem::path> files;
};
struct SuggestCommand {
    NamingOptions naming;
    FileArguments arguments;
    bool json = false;
};
struct RenameCommand {
    NamingOptions naming;
    FileArguments arguments;
    bool json = false;
    bool yes = false; ///< nothing is asked; a question for access to a folder is declined
    bool dryRun = false;
    bool notify = false; ///< the outcome goes to the desktop as well, with a way back
};
struct WatchCommand {
    NamingOptions naming;
    std::filesystem::path folder; ///< as given
    bool includeExisting = false; ///< files already there count as new
    bool json = false;
    bool notify = false; ///< the desktop tells of names that are ready
};
struct HistoryCommand {
    QString search; ///< part of an old or new path; "" for all
    bool json = false;
};
struct HistoryClearCommand {
    bool yes = false;
};
struct UndoCommand {
    QStringList ids; ///< empty: the latest ones
    qsizetype last = 1;
    bool json = false;
};
struct FoldersListCommand {
    bool json = false;
};
struct FoldersAddCommand {
    std::vector<std::filesystem::path> folders;
};
struct FoldersRemoveCommand {
    std::vector<std::filesystem::path> folders;
};
struct ExtractCommand {
    std::vector<std::filesystem::path> files;
    bool json = false;
    std::optional<std::filesystem::path> imageFolder; ///< each picture is written there
};
struct TemplatesListCommand {
    bool json = false;
};
struct TemplatesAddCommand {
    QString name;
    QList<TemplateField> fields;
};
struct TemplatesEditCommand {
    QString id;
    std::optional<QString> name;
    QList<TemplateField> fields; ///< empty: they stay
};
struct TemplatesRemoveCommand {
    QString id;
};
struct ConfigListCommand { };
struct ConfigGetCommand {
    QString key;
};
struct ConfigSetCommand {
    QString key;
    std::string value; ///< as given: it may be a path
};
enum class KeyAction { Status, Set, Remove };
struct KeyCommand {
    KeyAction action = KeyAction::Status;
    std::optional<QString> endpoint;
};
struct FormatsCommand { };
struct DoctorCommand {
    bool json = false;
    std::optional<QString> endpoint;
};
/// A text that was asked for: a help page or the version.
struct ShowTextCommand {
    std::string text;
};

/// One call of `varlo`, understood.
using Command = std::variant<OpenCommand, SuggestCommand, RenameCommand, WatchCommand, ExtractCommand, HistoryCommand,
    HistoryClearCommand, UndoCommand, FoldersListCommand, FoldersAddCommand, FoldersRemoveCommand, TemplatesListCommand,
    TemplatesAddCommand, TemplatesEditCommand, TemplatesRemoveCommand, ConfigListCommand, ConfigGetCommand,
    ConfigSetCommand, KeyCommand, FormatsCommand, DoctorCommand, ShowTextCommand>;

} // namespace Varlo
