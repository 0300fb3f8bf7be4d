// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "extraction/ThreadContentReader.h"

#include "extraction/describe.h"
#include <condition_variable>
#include <mutex>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>

using namespace Qt::StringLiterals;
using namespace Varlo;

/// Holds every asking thread back until five of them wait, and then a moment longer for a sixth, who must not come.
struct GateOfFive final : FileFlags {
    mutable std::mutex mutex;
    mutable std::condition_variable someoneCame;
    mutable int inside = 0, most = 0, came = 0;
    mutable bool isOnMainThread = false, isOpen = false;

    [[nodiscard]] bool isOnlineOnly(const std::filesystem::path &) const override
    {
        std::unique_lock lock(mutex);
        most = std::max(most, ++inside);
        isOnMainThread = isOnMainThread || QThread::currentThread() == qApp->thread();
        ++came;
        someoneCame.notify_all();
        someoneCame.wait(lock, [this] { return came >= 5; });
        someoneCame.wait_for(lock, std::chrono::milliseconds(200), [this] { return isOpen || inside > 5; });
        isOpen = true;
        someoneCame.notify_all();
        --inside;
        return false;
    }
};

class ThreadContentReaderTest : public QObject {
    Q_OBJECT
private slots:
    void readsFiveAtOnce();
    void answersAfterItsEnd();
};

static QCoro::Task<void> collect(ContentReader &reader, std::filesystem::path path, QStringList &outcomes)
{
    const Extraction outcome = co_await reader.read(path);
    outcomes.append(QString::fromStdString(path.filename().string()) + u": "_s + describe(outcome));
}

// Missing files make each reading ask for the flags, where the gate is.
void ThreadContentReaderTest::readsFiveAtOnce()
{
    const QTemporaryDir folder;
    const GateOfFive gate;
    ThreadContentReader reader(gate);
    QStringList outcomes;
    QStringList expected;
    for (int number = 10; number < 40; ++number) {
        const QString name = QString::number(number);
        collect(reader, folder.filePath(name).toStdString(), outcomes);
        expected.append(name + u": unreadable: "_s + qt_error_string(ENOENT));
    }
    QTRY_COMPARE_WITH_TIMEOUT(outcomes.size(), expected.size(), 60000);
    outcomes.sort();
    QCOMPARE(outcomes, expected);
    QCOMPARE(gate.most, 5);
    QVERIFY(!gate.isOnMainThread);
}

void ThreadContentReaderTest::answersAfterItsEnd()
{
    GateOfFive gate;
    gate.isOpen = true;
    gate.came = 5;
    QStringList outcomes;
    {
        ThreadContentReader reader(gate);
        for (int number = 0; number < 20; ++number)
            collect(reader, "/nowhere/x.txt", outcomes);
    }
    QTRY_COMPARE_WITH_TIMEOUT(outcomes.size(), 20, 60000);
}

QTEST_GUILESS_MAIN(ThreadContentReaderTest)
#include "tst_ThreadContentReader.moc"
