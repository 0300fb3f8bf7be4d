// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/FileLock.h"
#include "platform/linux/replaceFile.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <sched.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <sys/statvfs.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace Varlo;

class ReplaceFileTest : public QObject {
    Q_OBJECT
private slots:
    void init() { m_folder = std::make_unique<QTemporaryDir>(); }
    void keepsTheModeAndTheLink();
    void tightensASecretsMode();
    void removesOnlyItsOwnLeftovers();
    void keepsTheOldFileOnAFullDisk_data();
    void keepsTheOldFileOnAFullDisk();
    void locksTheFileThatIsNamed();

private:
    [[nodiscard]] std::filesystem::path at(const char *name) const
    {
        return m_folder->path().toStdString() + '/' + name;
    }
    [[nodiscard]] QStringList names() const
    {
        return QDir(m_folder->path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    }
    static QByteArray content(const std::filesystem::path &path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(unreadable)");
    }

    std::unique_ptr<QTemporaryDir> m_folder;
};

static mode_t modeOf(const std::filesystem::path &path)
{
    struct stat status { };
    return ::stat(path.c_str(), &status) == 0 ? status.st_mode & 07777 : 0;
}

void ReplaceFileTest::keepsTheModeAndTheLink()
{
    QVERIFY(replaceFile(at("real"), "old"));
    QCOMPARE(modeOf(at("real")), 0600u);
    QCOMPARE(::chmod(at("real").c_str(), 0640), 0);
    std::filesystem::create_symlink("real", at("inner"));
    std::filesystem::create_symlink(at("inner"), at("outer"));
    QVERIFY(replaceFile(at("outer"), QByteArrayView("n\0w", 3)));
    QCOMPARE(content(at("real")), QByteArray("n\0w", 3));
    QCOMPARE(modeOf(at("real")), 0640u);
    QVERIFY(std::filesystem::is_symlink(at("outer")) && std::filesystem::is_symlink(at("inner")));
    QCOMPARE(names(), QStringList({ u"inner"_s, u"outer"_s, u"real"_s }));
}

void ReplaceFileTest::tightensASecretsMode()
{
    QVERIFY(replaceFile(at("secrets"), "old"));
    QCOMPARE(::chmod(at("secrets").c_str(), 0644), 0);
    QVERIFY(replaceFile(at("secrets"), "new", ReplacedMode::OwnerOnly));
    QCOMPARE(modeOf(at("secrets")), 0600u);
}

void ReplaceFileTest::removesOnlyItsOwnLeftovers()
{
    const QStringList others { u".a.json.backup"_s, u".a.json.swp"_s, u".b.json.varlo-abcdef"_s, u"a.json"_s };
    for (const QString &name : others + QStringList { u".a.json.varlo-abcdef"_s })
        QVERIFY(replaceFile(at(qPrintable(name)), "x"));
    removeReplacementLeftovers(at("a.json"));
    QCOMPARE(names(), others);
}

void ReplaceFileTest::keepsTheOldFileOnAFullDisk_data()
{
    QTest::addColumn<int>("kibibytesFree");
    QTest::addColumn<int>("newSize");
    QTest::addColumn<bool>("fits");
    for (const int free : { 0, 1, 5, 20 })
        QTest::addRow("24 KiB into %d KiB, written in part", free) << free << 24 * 1024 << false;
    QTest::newRow("one page more than is free") << 20 << 20 * 1024 + 1 << false;
    QTest::newRow("all that is free") << 20 << 20 * 1024 << true;
    QTest::newRow("to nothing on a full disk") << 0 << 0 << true;
}

void ReplaceFileTest::keepsTheOldFileOnAFullDisk()
{
    QFETCH(int, kibibytesFree);
    QFETCH(int, newSize);
    QFETCH(bool, fits);
    if (::unshare(CLONE_NEWNS) != 0 || ::mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0)
        QSKIP("No private mount namespace can be had here, so there is no small disk to fill.");
    const std::string disk = m_folder->path().toStdString();
    if (::mount("none", disk.c_str(), "tmpfs", 0, "size=64k") != 0)
        QSKIP("Mounting is refused here, so there is no small disk to fill.");
    const auto unmount = qScopeGuard([&] { ::umount(disk.c_str()); });

    const QByteArray old(8 * 1024, 'o');
    QVERIFY(replaceFile(at("file"), old));
    struct statvfs space { };
    QCOMPARE(::statvfs(disk.c_str(), &space), 0);
    QFile filler(at("filler"));
    QVERIFY(filler.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
    const QByteArray filling(qsizetype(space.f_bavail * space.f_frsize) - kibibytesFree * 1024, 'f');
    QCOMPARE(filler.write(filling), filling.size());

    const QByteArray replacement(newSize, 'n');
    const auto replaced = replaceFile(at("file"), replacement);
    QCOMPARE(replaced.has_value(), fits);
    if (!fits)
        QCOMPARE(replaced.error().code, ENOSPC);
    QCOMPARE(content(at("file")), fits ? replacement : old);
    QCOMPARE(names(), QStringList({ u"file"_s, u"filler"_s }));
}

void ReplaceFileTest::locksTheFileThatIsNamed()
{
    using namespace std::chrono_literals;
    auto first = FileLock::acquire(at("lock"));
    QVERIFY(first);
    const auto second = FileLock::acquire(at("lock"), 20ms);
    QVERIFY(!second);
    QCOMPARE(second.error().code, EAGAIN);
    // Whoever waits for a lock whose file is deleted must not end up alone with the deleted one.
    QVERIFY(std::filesystem::remove(at("lock")));
    const auto third = FileLock::acquire(at("lock"), 20ms);
    QVERIFY(third);
    QVERIFY(!FileLock::acquire(at("lock"), 20ms));
}

QTEST_GUILESS_MAIN(ReplaceFileTest)
#include "tst_replaceFile.moc"
