// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/closestWord.h"
#include "cli/commands.h"
#include "cli/FileArgumentList.h"
#include "platform/shownPath.h"
#include "platform/visibleText.h"
#include "settings/watchFolderPath.h"
#include <array>
#include <QCoreApplication>

namespace Varlo {

using namespace Qt::StringLiterals;

/// The preferences that the terminal shows and changes; the others have subcommands of their own or belong to the
/// window.
static const std::array<const PreferenceKey *, 7> &offeredKeys()
{
    static const std::array<const PreferenceKey *, 7> keys { &Preference::uiLanguage, &Preference::writeFinderTags,
        &Preference::watchFolderEnabled, &Preference::watchFolderPath, &Preference::watchFolderIncludeExisting,
        &Preference::endpoint, &Preference::model };
    return keys;
}

static const PreferenceKey *findKey(const QString &name, Terminal &terminal)
{
    std::vector<std::string> names;
    for (const PreferenceKey *key : offeredKeys()) {
        if (key->name == name)
            return key;
        names.push_back(key->name.toStdString());
    }
    QString message = QCoreApplication::translate("Terminal", "there is no preference “%1”").arg(visibleText(name));
    if (const auto closest = closestWord(name.toStdString(), names)) {
        message
            += QCoreApplication::translate("Terminal", "; did you mean “%1”?").arg(QString::fromStdString(*closest));
    }
    terminal.complain(message);
    return nullptr;
}

static QString shownValue(const PreferenceKey &key, Session &session)
{
    if (key.type == PreferenceType::Bool)
        return session.preferences().boolean(key) ? u"true"_s : u"false"_s;
    return session.preferences().string(key);
}

/// Empty for "", which stands for no folder.
static std::filesystem::path folderArgument(const std::string &argument)
{
    return argument.empty() ? std::filesystem::path() : resolvedArgument(argument);
}

/// The value that the argument stands for, or why it stands for none.
static Result<PreferenceValue, QString> parseValue(const PreferenceKey &key, const std::string &argument)
{
    const QString words = QString::fromStdString(argument);
    if (key.type == PreferenceType::Bool) {
        if (words == "true"_L1 || words == "yes"_L1 || words == "on"_L1)
            return PreferenceValue(true);
        if (words == "false"_L1 || words == "no"_L1 || words == "off"_L1)
            return PreferenceValue(false);
        return tl::unexpected(QCoreApplication::translate("Terminal", "is either true or false"));
    }
    if (&key == &Preference::uiLanguage && !QStringList { u"system"_s, u"en"_s, u"nl"_s, u"es"_s }.contains(words))
        return tl::unexpected(QCoreApplication::translate("Terminal", "is one of system, en, nl and es"));
    if (&key == &Preference::endpoint) {
        const auto endpoint = Endpoint::parse(words);
        if (!endpoint)
            return tl::unexpected(description(endpoint.error()));
    }
    if (&key == &Preference::watchFolderPath) {
        const std::filesystem::path folder = folderArgument(argument);
        std::error_code error;
        if (!folder.empty() && !std::filesystem::is_directory(folder, error))
            return tl::unexpected(QCoreApplication::translate("Terminal", "is a folder that exists"));
        return PreferenceValue(shownPath(folder));
    }
    return PreferenceValue(words);
}

ExitCode run(const ConfigListCommand &, Session &session)
{
    for (const PreferenceKey *key : offeredKeys())
        session.terminal().print(key->name + u" = "_s + visibleText(shownValue(*key, session)));
    return ExitCode::Success;
}

ExitCode run(const ConfigGetCommand &command, Session &session)
{
    const PreferenceKey *key = findKey(command.key, session.terminal());
    if (!key)
        return ExitCode::WrongUsage;
    session.terminal().print(visibleText(shownValue(*key, session)));
    return ExitCode::Success;
}

ExitCode run(const ConfigSetCommand &command, Session &session)
{
    Terminal &terminal = session.terminal();
    const PreferenceKey *key = findKey(command.key, terminal);
    if (!key)
        return ExitCode::WrongUsage;
    const Result<PreferenceValue, QString> value = parseValue(*key, command.value);
    if (!value) {
        terminal.complain(key->name + u": "_s + value.error());
        return ExitCode::WrongUsage;
    }
    const Result<void, SystemError> stored = key == &Preference::watchFolderPath
        ? setWatchFolderPath(session.preferences(), folderArgument(command.value))
        : session.preferences().set(*key, *value);
    session.tellNotices();
    if (stored)
        return ExitCode::Success;
    terminal.complain(QCoreApplication::translate("Terminal", "the preference could not be stored: %1")
                          .arg(stored.error().description()));
    return ExitCode::SomeFailed;
}

} // namespace Varlo
