// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "history/RenameLogEntry.h"
#include "renaming/TestFolder.h"
#include <QProcess>
#include <QtTest>
#include <set>
#include <sys/stat.h>
#include <unistd.h>

using namespace Varlo;
using namespace Qt::StringLiterals;
using std::filesystem::path;

/// What only several processes can show: two at once, another user's, and one that is killed.
class RenamingProcessesTest : public QObject {
    Q_OBJECT
private slots:
    void init();
    void keepEachOthersRenames();
    void mayNotRenameEverywhere_data();
    void mayNotRenameEverywhere();
    void diesAtAnyMoment();

private:
    std::optional<TestFolder> m_folder;
    std::optional<TestFolder> m_state;

    std::unique_ptr<QProcess> start(const QStringList &arguments, const QStringList &wrapper = {})
    {
        QStringList line = wrapper;
        line << QStringLiteral(VARLO_RENAME_DRIVER) << QString::fromStdString(m_state->path().native()) << arguments;
        auto process = std::make_unique<QProcess>();
        process->setProcessChannelMode(QProcess::MergedChannels);
        const QString program = line.takeFirst();
        process->start(program, line);
        return process;
    }
    QByteArray run(const QStringList &arguments, const QStringList &wrapper = {})
    {
        const auto process = start(arguments, wrapper);
        return process->waitForFinished(120'000) ? process->readAll() : QByteArray("did not end");
    }
    RenameLogEntries logged() { return decodeRenameLog(run({ u"list"_s })).value_or(RenameLogEntries {}); }
    /// Every file is where its entry says; a file's content is its first name.
    void compareWithDisk(const RenameLogEntries &entries)
    {
        std::set<path> expected;
        for (const RenameLogEntry &entry : entries) {
            const path &place = entry.isStanding() ? entry.toPath : entry.fromPath;
            QCOMPARE(TestFolder::content(place), entry.fromPath.filename().native());
            QVERIFY(expected.insert(place).second);
        }
    }
};

void RenamingProcessesTest::init()
{
    m_folder.emplace();
    m_state.emplace();
}

void RenamingProcessesTest::keepEachOthersRenames()
{
    constexpr int count = 500;
    std::vector<std::unique_ptr<QProcess>> processes;
    for (const QString &prefix : { u"left "_s, u"right "_s }) {
        QStringList arguments { u"churn"_s, prefix };
        for (int number = 0; number < count; ++number) {
            const std::string name = prefix.toStdString() + "old " + std::to_string(number) + ".txt";
            arguments << QString::fromStdString(m_folder->create(name).native());
        }
        processes.push_back(start(arguments));
    }
    for (const auto &process : processes) {
        QVERIFY(process->waitForFinished(240'000));
        QCOMPARE(process->readAll(), QByteArray());
    }
    const RenameLogEntries entries = logged();
    QCOMPARE(entries.size(), 2u * count);
    QCOMPARE(m_folder->names().size(), 2u * count);
    const auto standing
        = std::count_if(entries.begin(), entries.end(), [](const RenameLogEntry &entry) { return entry.isStanding(); });
    QCOMPARE(standing, 2 * count - 2 * count / 5);
    compareWithDisk(entries);
}

void RenamingProcessesTest::mayNotRenameEverywhere_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<bool>("isOwn");
    QTest::newRow("folder that is read-only") << 0555 << true;
    QTest::newRow("folder that is closed") << 0700 << false;
    QTest::newRow("another user's file in a sticky folder") << 01777 << false;
}

void RenamingProcessesTest::mayNotRenameEverywhere()
{
    constexpr uid_t nobody = 65534;
    QFETCH(int, mode);
    QFETCH(bool, isOwn);
    const path file = m_folder->create("a.pdf");
    QCOMPARE(::chmod(m_folder->path().c_str(), static_cast<mode_t>(mode)), 0);
    QCOMPARE(::chown(m_state->path().c_str(), nobody, nobody), 0);
    if (isOwn)
        QCOMPARE(::chown(m_folder->path().c_str(), nobody, nobody), 0);
    const QStringList asNobody { u"setpriv"_s, u"--reuid=65534"_s, u"--regid=65534"_s, u"--clear-groups"_s };
    QCOMPARE(
        QByteArray(run({ u"rename"_s, QString::fromStdString(file.native()), u"b"_s }, asNobody)).left(7), "denied:");
    QCOMPARE(m_folder->names(), std::vector<std::string> { "a.pdf" });
    QVERIFY(logged().empty());
}

void RenamingProcessesTest::diesAtAnyMoment()
{
    for (int round = 0; round < 40; ++round) {
        init();
        QStringList arguments { u"churn"_s, u"new "_s };
        for (int number = 0; number < 60; ++number)
            arguments << QString::fromStdString(m_folder->create("old " + std::to_string(number) + ".txt").native());
        const auto process = start(arguments);
        QVERIFY(process->waitForStarted());
        QTest::qSleep(20 + round * 3);
        process->kill();
        process->waitForFinished();
        const RenameLogEntries entries = logged();
        compareWithDisk(entries);
        QCOMPARE(m_folder->names().size(), 60u);
        const auto names = m_folder->names();
        const auto renamed = std::count_if(
            names.begin(), names.end(), [](const std::string &name) { return name.starts_with("new "); });
        const auto standing = std::count_if(
            entries.begin(), entries.end(), [](const RenameLogEntry &entry) { return entry.isStanding(); });
        QCOMPARE(standing, renamed);
    }
}

QTEST_GUILESS_MAIN(RenamingProcessesTest)
#include "tst_renamingProcesses.moc"
