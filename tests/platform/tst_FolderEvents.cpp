// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/FolderEvents.h"

#include <cstdlib>
#include <fcntl.h>
#include <QScopeGuard>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <sched.h>
#include <sys/mount.h>

using namespace Varlo;
using Names = std::vector<std::string>;

class FolderEventsTest : public QObject {
    Q_OBJECT
private slots:
    void init();
    void notices_data();
    void notices();
    void noticesWritingUntilTheFileIsDeleted();
    void tellsOfAnUnmountedFolder();

private:
    std::unique_ptr<QTemporaryDir> m_folder;
    QObject m_owner;
    FolderEvents *m_events = nullptr;
};

void FolderEventsTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QCOMPARE(::chdir(m_folder->path().toUtf8().constData()), 0);
    QCOMPARE(std::system("mkdir watched && cd watched && touch a.txt ../outside.txt"), 0);
    m_events = FolderEvents::open("watched", &m_owner).value_or(nullptr);
    QVERIFY(m_events);
}

void FolderEventsTest::notices_data()
{
    QTest::addColumn<QByteArray>("command"); // causes nothing else that is noticed
    QTest::addColumn<Names>("arrived");
    QTest::newRow("made") << QByteArray("ln a.txt b.txt") << Names { "b.txt" };
    QTest::newRow("moved in") << QByteArray("mv ../outside.txt b.txt") << Names { "b.txt" };
    QTest::newRow("moved out") << QByteArray("mv a.txt ..") << Names {};
    QTest::newRow("closed behind writing") << QByteArray(": >> a.txt") << Names {};
    QTest::newRow("deleted") << QByteArray("rm a.txt") << Names {};
    QTest::newRow("rights changed") << QByteArray("chmod 600 a.txt") << Names {};
}

void FolderEventsTest::notices()
{
    QFETCH(QByteArray, command);
    QSignalSpy pending(m_events, &FolderEvents::pending);
    QVERIFY(m_events->read().isEmpty);
    QCOMPARE(std::system(("cd watched && " + command).constData()), 0);
    QVERIFY(!pending.isEmpty() || pending.wait(60'000));
    const FolderEvents::Slice slice = m_events->read();
    QVERIFY(!slice.isEmpty && !slice.isFolderLost);
    QTEST(slice.arrived, "arrived");
}

void FolderEventsTest::noticesWritingUntilTheFileIsDeleted()
{
    const FileDescriptor file(::open("watched/a.txt", O_WRONLY | O_CLOEXEC));
    QCOMPARE(::write(file.get(), "x", 1), 1);
    QVERIFY(!m_events->read().isEmpty);
    QCOMPARE(std::system("rm watched/a.txt"), 0);
    QVERIFY(!m_events->read().isEmpty);
    QCOMPARE(::write(file.get(), "x", 1), 1);
    QVERIFY(m_events->read().isEmpty);
}

void FolderEventsTest::tellsOfAnUnmountedFolder()
{
    if (::unshare(CLONE_NEWNS) != 0 || ::mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0)
        QSKIP("No private mount namespace can be had here, so there is nothing to unmount.");
    QCOMPARE(::mount("none", "watched", "tmpfs", 0, "size=64k"), 0);
    auto unmount = qScopeGuard([] { ::umount2("watched", MNT_DETACH); });
    const auto events = FolderEvents::open("watched", &m_owner);
    QVERIFY(events);
    QCOMPARE(::umount("watched"), 0); // would be refused if the watch kept the file system busy
    unmount.dismiss();
    QVERIFY((*events)->read().isFolderLost);
}

QTEST_GUILESS_MAIN(FolderEventsTest)
#include "tst_FolderEvents.moc"
