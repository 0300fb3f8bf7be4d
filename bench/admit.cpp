// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
// Admits the files of a folder to a batch, as a drop on the window does, and nothing else.
// Prints how many there are, what they take in memory, and the longest time for which the event loop stood still.
#include "workflow/TestBatch.h"
#include <algorithm>
#include <fstream>
#include <iostream>
#include <QCoreApplication>
#include <QElapsedTimer>
#include <QTimer>
#include <unistd.h>

using namespace Varlo;

static qint64 residentKiB()
{
    qint64 pages = 0;
    std::ifstream("/proc/self/statm") >> pages >> pages;
    return pages * ::sysconf(_SC_PAGESIZE) / 1024;
}

int main(int argumentCount, char **arguments)
{
    QCoreApplication application(argumentCount, arguments);
    const TestBatch test;
    RenamerViewModel &batch = *test.batch;

    QElapsedTimer sinceTick;
    qint64 longestStallNs = 0;
    QTimer ticks;
    QObject::connect(&ticks, &QTimer::timeout, [&] {
        longestStallNs = std::max(longestStallNs, sinceTick.nsecsElapsed());
        sinceTick.start();
    });
    const qint64 before = residentKiB();
    sinceTick.start();
    ticks.start(20); // often enough to see a stall of 100 ms, and no load of its own
    std::vector<std::filesystem::path> folders(arguments + 1, arguments + argumentCount);
    QCoro::waitFor(batch.addFiles(std::move(folders), true));
    const auto count = static_cast<qint64>(batch.files().size());
    std::cout << count << " files, " << (residentKiB() - before) * 1024 / std::max<qint64>(1, count)
              << " bytes each, event loop still for at most " << longestStallNs / 1000000 << " ms\n";
}
