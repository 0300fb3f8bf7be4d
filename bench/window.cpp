// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
// The window over many files, in one process:
//     use-window FOLDER rows      adds the files of the folder and scrolls from the first to the last
//     use-window FOLDER suggest   adds them and has a name suggested for each, by the endpoint of the environment
//     use-window FOLDER rename    adds them, types a name for each and renames them all
// Prints, a figure a line, what bench-window.py reads.
#include "app/Application.h"
#include "ui/chooseFonts.h"
#include <algorithm>
#include <fstream>
#include <iostream>
#include <QCoroTask>
#include <QElapsedTimer>
#include <QGuiApplication>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTimer>
#include <unistd.h>

using namespace Varlo;

namespace {

/// The longest time for which the event loop has stood still.
class StallMeter {
public:
    StallMeter()
    {
        QObject::connect(&m_ticks, &QTimer::timeout, [this] { tick(); });
        m_ticks.start(intervalMs);
        m_sinceTick.start();
    }
    void reset()
    {
        m_longestNs = 0;
        m_sinceTick.start();
    }
    [[nodiscard]] qint64 longestMs()
    {
        tick();
        return std::max<qint64>(0, m_longestNs / 1'000'000 - intervalMs);
    }

private:
    void tick() { m_longestNs = std::max(m_longestNs, m_sinceTick.nsecsElapsed()), m_sinceTick.start(); }

    static constexpr int intervalMs = 5;
    QTimer m_ticks;
    QElapsedTimer m_sinceTick;
    qint64 m_longestNs = 0;
};

} // namespace

static double residentMiB()
{
    double pages = 0;
    std::ifstream("/proc/self/statm") >> pages >> pages;
    return pages * static_cast<double>(::sysconf(_SC_PAGESIZE)) / (1024 * 1024);
}

static QQuickItem *findList(QQuickItem *below)
{
    for (QQuickItem *item : below->childItems()) {
        if (item->inherits("QQuickListView"))
            return item;
        if (QQuickItem *found = findList(item))
            return found;
    }
    return nullptr;
}

static void waitForFrame(QQuickWindow *window)
{
    QEventLoop loop;
    QObject::connect(window, &QQuickWindow::frameSwapped, &loop, &QEventLoop::quit);
    window->update();
    loop.exec();
}

/// The time of each frame, in milliseconds, in their order of length.
static std::vector<double> scroll(QQuickWindow *window, QQuickItem *list)
{
    const double end = list->property("contentHeight").toDouble() - list->height();
    const double step = list->height() / 2;
    std::vector<double> frames;
    for (double y = 0; y < end; y += step) {
        QElapsedTimer timer;
        timer.start();
        list->setProperty("contentY", y);
        waitForFrame(window);
        frames.push_back(static_cast<double>(timer.nsecsElapsed()) / 1e6);
    }
    std::ranges::sort(frames);
    return frames;
}

int main(int argumentCount, char **arguments)
{
    if (argumentCount != 3)
        return 2;
    QGuiApplication application(argumentCount, arguments);
    chooseFonts();
    Application varlo(processEnvironment());
    QQuickWindow *const window = varlo.show();
    if (!window)
        return 1;
    waitForFrame(window);
    const std::string_view use = arguments[2];
    RenamerViewModel &batch = varlo.batch();
    StallMeter meter;
    std::vector<std::filesystem::path> folders { std::filesystem::absolute(arguments[1]) };
    QCoro::waitFor(batch.addFiles(std::move(folders), true));
    waitForFrame(window);
    std::cout << "files " << batch.rowCount() << "\nadd_stall_ms " << meter.longestMs() << '\n';
    if (use == "rows") {
        const std::vector<double> frames = scroll(window, findList(window->contentItem()));
        std::cout << "frames " << frames.size() << "\nframe_p50_ms " << frames[frames.size() / 2] << "\nframe_p99_ms "
                  << frames[frames.size() * 99 / 100] << "\nframe_longest_ms " << frames.back() << '\n';
    } else if (use == "suggest") {
        meter.reset();
        QCoro::waitFor(batch.suggestAll());
        std::cout << "named " << batch.renamableCount() << "\nsuggest_stall_ms " << meter.longestMs() << '\n';
    } else if (use == "rename") {
        QCoro::waitFor(batch.suggestAll()); // without a key all fail, and may be named by hand
        for (int row = 0; row < batch.rowCount(); ++row)
            batch.setSuggestedName(row, QStringLiteral("Letter about the meeting %1").arg(row));
        waitForFrame(window);
        meter.reset();
        QElapsedTimer timer;
        timer.start();
        QCoro::waitFor(batch.renameAll());
        std::cout << "rename_s " << static_cast<double>(timer.elapsed()) / 1000 << "\nrename_stall_ms "
                  << meter.longestMs() << "\nleft " << batch.renamableCount() << '\n';
    }
    std::cout << "resident_mib " << residentMiB() << std::endl;
    return 0;
}
