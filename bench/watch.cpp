// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
// Drops 10,000 files into a watched folder while a batch takes what the watcher reports, and looks every millisecond
// whether the event loop still goes. The files come from another process, as they do in life; the suggestions are
// faked. Exits with 1 where a target is missed.
#include "watch/FolderWatcher.h"
#include "workflow/takeNewFiles.h"
#include "workflow/TestBatch.h"
#include <algorithm>
#include <iostream>
#include <QCoreApplication>
#include <QElapsedTimer>
#include <QProcess>
#include <QTimer>

using namespace Varlo;

constexpr qsizetype fileCount = 10000;
constexpr qint64 stallTargetMs = 100;

int main(int argumentCount, char **arguments)
{
    QCoreApplication application(argumentCount, arguments);
    const TestBatch test;
    const std::filesystem::path folder = test.folder / "watched";
    std::filesystem::create_directory(folder);

    QElapsedTimer sinceTick;
    qint64 longestStallNs = 0;
    QTimer ticks;
    ticks.setTimerType(Qt::PreciseTimer);
    QObject::connect(&ticks, &QTimer::timeout, [&] {
        longestStallNs = std::max(longestStallNs, sinceTick.nsecsElapsed());
        sinceTick.start();
    });

    int reports = 0;
    std::size_t reported = 0;
    FolderWatcher watcher;
    QObject::connect(&watcher, &FolderWatcher::newFilesFound, [&](const std::vector<std::filesystem::path> &files) {
        ++reports;
        reported += files.size();
        takeNewFiles(test.batch.get(), files);
    });
    QObject::connect(
        test.batch.get(), &RenamerViewModel::lastSuggestSecondsChanged, &application, &QCoreApplication::quit);
    QObject::connect(&watcher, &FolderWatcher::folderLost, &application, &QCoreApplication::quit);
    if (!watcher.start(folder, false))
        return 1;

    QProcess writer;
    writer.setProgram(QStringLiteral("python3"));
    writer.setArguments({ QStringLiteral("-c"),
        QStringLiteral("import sys\nfor n in range(%1):\n    open(f'{sys.argv[1]}/{n}.txt', 'w').write('small')")
            .arg(fileCount),
        QString::fromStdString(folder.native()) });
    writer.start();
    sinceTick.start();
    ticks.start(1);
    QCoreApplication::exec();
    writer.waitForFinished();

    const qint64 stallMs = longestStallNs / 1000000;
    std::cout << "watch: " << reported << " files in " << reports
              << " report(s) (target 1), event loop still for at most " << stallMs << " ms (target " << stallTargetMs
              << ")\n";
    return reports == 1 && reported == fileCount && stallMs <= stallTargetMs ? 0 : 1;
}
