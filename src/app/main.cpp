// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/Application.h"
#include "app/SingleInstance.h"
#include "platform/shownPath.h"
#include "ui/chooseFonts.h"
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <QClipboard>
#include <QGuiApplication>
#include <QPalette>
#include <QQuickWindow>
#include <QTimer>
#include <string_view>
#include <sys/prctl.h>

using namespace Varlo;
using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

struct Arguments {
    bool isForBus = false; ///< started by the session bus, which then says what for
    std::vector<std::filesystem::path> files;
};

} // namespace

/// varlo-window [--dbus] [--] [FILE...]
static Arguments read(int argumentCount, char **arguments)
{
    Arguments result;
    bool areOptionsOver = false;
    for (int index = 1; index < argumentCount; ++index) {
        const std::string_view word = arguments[index];
        if (!areOptionsOver && word == "--")
            areOptionsOver = true;
        else if (!areOptionsOver && word == "--dbus")
            result.isForBus = true;
        else
            result.files.push_back(standardizedPath(arguments[index]));
    }
    return result;
}

/// What lets the window come to the front. Read before Qt does, which takes it out of the environment.
static QVariantMap activationData()
{
    QVariantMap data;
    for (const auto &[variable, key] : { std::pair("XDG_ACTIVATION_TOKEN", u"activation-token"_s),
             std::pair("DESKTOP_STARTUP_ID", u"desktop-startup-id"_s) }) {
        const QString value = qEnvironmentVariable(variable);
        if (!value.isEmpty())
            data.insert(key, value);
    }
    return data;
}

/// For measurements: ends with the first frame that shows so many rows.
static void quitAtRows(Application &varlo)
{
    const int rows = qEnvironmentVariableIntValue("VARLO_QUIT_AT_ROWS");
    if (rows == 0 || !varlo.window())
        return;
    QObject::connect(varlo.window(), &QQuickWindow::frameSwapped, varlo.window(), [&varlo, rows] {
        if (varlo.batch().rowCount() >= rows)
            QGuiApplication::exit(); // without the rows that come after it
    });
}

static void serve(Application &varlo, SingleInstance &instance)
{
    QObject::connect(
        &instance, &SingleInstance::requested, &instance, [&varlo](const SingleInstance::Request &request) {
            if (!request.files.empty())
                varlo.batch().addFiles(request.files, true, request.suggestions);
            varlo.activate(request.platformData);
        });
    QObject::connect(&instance, &SingleInstance::actionRequested, &instance,
        [&varlo](const QString &name, const QVariantMap &platformData) {
            varlo.activate(platformData);
            varlo.act(name);
        });
    QObject::connect(qApp, &QGuiApplication::lastWindowClosed, &instance, [&varlo, &instance] {
        instance.end();
        varlo.finish();
    });
    varlo.followDesktop(instance.bus());
}

/// At once where it can: objects and the tables of types would only be taken apart one by one. What was copied here is
/// handed to the desktop by Qt at its own end, and nothing else is left to do then.
static int end(int status)
{
#ifndef __SANITIZE_ADDRESS__ // which looks for leaks after main()
    if (!QGuiApplication::clipboard()->ownsClipboard() && !QGuiApplication::clipboard()->ownsSelection())
        std::_Exit(status);
#endif
    return status;
}

static int run(int argumentCount, char **arguments)
{
#ifndef __SANITIZE_ADDRESS__ // whose leak check has to look into the process
    ::prctl(PR_SET_DUMPABLE, 0); // the key passes through this process's memory
#endif
    const QVariantMap activation = activationData();
    QGuiApplication application(argumentCount, arguments);
    QGuiApplication::setApplicationName(u"varlo-window"_s);
    QGuiApplication::setApplicationDisplayName(u"Varlo"_s);
    QGuiApplication::setDesktopFileName(u"com.varlo.Varlo"_s);
    QGuiApplication::setQuitOnLastWindowClosed(false); // see Application::finish()

    Arguments start = read(argumentCount, arguments);
    SingleInstance instance;
    switch (instance.begin({ start.files, {}, activation })) {
    case SingleInstance::Role::First:
        break;
    case SingleInstance::Role::Second:
        return 0;
    case SingleInstance::Role::Unanswered:
        std::fputs("varlo: another Varlo is running and does not answer\n", stderr);
        return 1;
    }
    chooseFonts();
    QGuiApplication::setPalette(QPalette(QColor(0xF5, 0xF3, 0xEF))); // light, whatever the desktop's is
    Application varlo(processEnvironment());
    serve(varlo, instance);
    if (!start.files.empty())
        varlo.batch().addFiles(std::move(start.files), true); // looked for while the window is made
    if (start.isForBus) {
        constexpr auto patience = 30s; // the bus calls as soon as the name is there
        QTimer::singleShot(patience, &application, [&varlo] {
            if (!varlo.window())
                QGuiApplication::quit();
        });
    } else if (!varlo.show()) {
        return 1;
    }
    quitAtRows(varlo);
    return end(QGuiApplication::exec());
}

int main(int argumentCount, char **arguments) { return run(argumentCount, arguments); }
