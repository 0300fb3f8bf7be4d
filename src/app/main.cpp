// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/Application.h"
#include "platform/shownPath.h"
#include "ui/chooseFonts.h"
#include <QGuiApplication>
#include <QQuickWindow>
#include <sys/prctl.h>

using namespace Varlo;
using namespace Qt::StringLiterals;

int main(int argumentCount, char **arguments)
{
#ifndef __SANITIZE_ADDRESS__ // whose leak check has to look into the process
    ::prctl(PR_SET_DUMPABLE, 0); // the key passes through this process's memory
#endif
    QGuiApplication application(argumentCount, arguments);
    QGuiApplication::setApplicationName(u"varlo-window"_s);
    QGuiApplication::setApplicationDisplayName(u"Varlo"_s);
    QGuiApplication::setDesktopFileName(u"com.varlo.Varlo"_s);
    chooseFonts();

    Application varlo(processEnvironment());
    QQuickWindow *const window = varlo.show();
    if (!window)
        return 1;
    // For measurements: ends with the first frame that shows so many rows.
    if (const int rows = qEnvironmentVariableIntValue("VARLO_QUIT_AT_ROWS"); rows > 0) {
        QObject::connect(window, &QQuickWindow::frameSwapped, window, [&varlo, rows] {
            if (varlo.batch().rowCount() >= rows)
                QGuiApplication::quit();
        });
    }
    std::vector<std::filesystem::path> files;
    for (int index = 1; index < argumentCount; ++index) {
        if (std::string_view(arguments[index]) != "--")
            files.push_back(standardizedPath(arguments[index]));
    }
    if (!files.empty())
        varlo.batch().addFiles(std::move(files), true);
    return QGuiApplication::exec();
}
