// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Renames and takes back in a process of its own, for tests that run several at once, as another user, or kill it.
// usage: renameDriver STATE rename [FILE NAME]...   all in one action
//        renameDriver STATE undo COUNT              the latest ones
//        renameDriver STATE churn PREFIX FILE...    each to a name of its own, the latest rename undone in between
//        renameDriver STATE template NAME           adds a template of that name
//        renameDriver STATE list | templates        the log, or the templates, as they stand in the preferences
// One line for each file that could not be renamed; exit code 1 if there was one.

#include "history/RenameLog.h"
#include "platform/linux/JsonPreferenceStore.h"
#include "platform/linux/SystemClock.h"
#include "templates/TemplateStore.h"
#include <cstdio>
#include <QCoreApplication>
#include <QCoroTask>

using namespace Varlo;
using namespace Qt::StringLiterals;
using std::filesystem::path;

namespace {

struct NoPanel final : FolderAccessPanel {
    [[nodiscard]] QCoro::Task<std::optional<path>> ask(path) override { co_return std::nullopt; }
};

struct Driver {
    explicit Driver(const path &state)
        : store(state / "preferences.json")
        , journal(state)
    {
    }
    JsonPreferenceStore store;
    Preferences preferences { store };
    SystemClock clock;
    NoPanel panel;
    RenameJournal journal;
    FileRenamer renamer { journal, clock };
    FolderAccess access { preferences, panel };
    RenameLog log { preferences, renamer, access };
    int failures = 0;

    void fail(const QString &message)
    {
        ++failures;
        std::puts(qPrintable(message));
    }
    void rename(const std::vector<RenameRequest> &requests)
    {
        const auto action = log.beginAction();
        renamer.renameAll(requests, [&](std::size_t index, const FileRenamer::Outcome &outcome) {
            if (outcome)
                log.record(requests[index].path, *outcome);
            else
                fail((isPermissionDenied(outcome.error()) ? u"denied: "_s : u""_s) + description(outcome.error()));
            return FileRenamer::Next::GoOn;
        });
    }
    void undoLatest()
    {
        const auto outcome = QCoro::waitFor(log.revertLatest());
        if (!outcome)
            fail(outcome.error());
    }
    void addTemplate(const QString &name)
    {
        TemplateStore templates(preferences);
        const auto id = templates.addTemplate({ TemplateField::Title });
        const auto saved = id.and_then([&](const QString &added) {
            NameTemplate named = *templates.nameTemplate(added);
            named.name = name;
            return templates.updateTemplate(named).map([&] { return added; });
        });
        if (!saved)
            fail(saved.error().description());
    }
    void churn(const QString &prefix, const std::vector<path> &files)
    {
        for (std::size_t number = 0; number < files.size(); ++number) {
            rename({ { files[number], prefix + QString::number(number), std::nullopt } });
            if (number % 5 == 4)
                undoLatest();
        }
    }
};

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const std::vector<std::string> arguments(argv + 1, argv + argc);
    Driver driver(arguments.at(0));
    const std::string &command = arguments.at(1);
    if (command == "rename") {
        std::vector<RenameRequest> requests;
        for (std::size_t at = 2; at + 1 < arguments.size(); at += 2)
            requests.push_back({ arguments[at], QString::fromStdString(arguments[at + 1]), std::nullopt });
        driver.rename(requests);
    } else if (command == "undo") {
        const auto action = driver.log.beginAction();
        for (int left = std::stoi(arguments.at(2)); left > 0; --left)
            driver.undoLatest();
    } else if (command == "churn") {
        driver.churn(QString::fromStdString(arguments.at(2)), { arguments.begin() + 3, arguments.end() });
    } else if (command == "template") {
        driver.addTemplate(QString::fromStdString(arguments.at(2)));
    } else if (command == "templates") {
        std::puts(driver.preferences.data(Preference::templates).constData());
    } else {
        std::puts(driver.preferences.data(Preference::renameLog).constData());
    }
    return driver.failures == 0 ? 0 : 1;
}
