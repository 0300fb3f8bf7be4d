// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/linux/openRegularFile.h"

#include <atomic>
#include <fcntl.h>
#include <QTemporaryDir>
#include <QTest>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <thread>

using namespace Qt::StringLiterals;
using namespace Varlo;

class OpenRegularFileTest : public QObject {
    Q_OBJECT
private slots:
    void refuses_data();
    void refuses();
    void neverWaitsForAPipe();

private:
    std::filesystem::path path(const char *name) const
    {
        return m_folder.filePath(QLatin1StringView(name)).toStdString();
    }

    QTemporaryDir m_folder;
};

void OpenRegularFileTest::refuses_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("words");
    const QString notRegular = u"This is not a regular file."_s;
    QVERIFY(::mkfifo(path("pipe").c_str(), 0600) == 0);
    sockaddr_un address { AF_UNIX, {} };
    path("socket").string().copy(address.sun_path, sizeof address.sun_path - 1);
    const FileDescriptor socket(::socket(AF_UNIX, SOCK_STREAM, 0));
    QVERIFY(::bind(socket.get(), reinterpret_cast<const sockaddr *>(&address), sizeof address) == 0);
    std::filesystem::create_directory(path("folder"));
    for (const char *device : { "zero", "tty", "ptmx" })
        std::filesystem::create_symlink(std::filesystem::path("/dev") / device, path(device));
    for (const char *name : { "pipe", "socket", "folder", "zero", "tty", "ptmx" })
        QTest::newRow(name) << QString::fromLatin1(name) << notRegular;

    std::filesystem::create_symlink("loop", path("loop"));
    std::filesystem::create_symlink("nowhere", path("dangling"));
    QTest::newRow("loop") << u"loop"_s << qt_error_string(ELOOP);
    QTest::newRow("link to nothing") << u"dangling"_s << qt_error_string(ENOENT);
    QTest::newRow("longer than a name can be") << u"x"_s.repeated(256) << qt_error_string(ENAMETOOLONG);
}

void OpenRegularFileTest::refuses()
{
    QFETCH(QString, name);
    const auto opened = openRegularFile(path(name.toLatin1().constData()));
    QVERIFY(!opened);
    QTEST(description(opened.error()).text(), "words");
}

// The name changes hands all the time: whatever was looked at, what is opened may be the pipe. A wait would never end.
void OpenRegularFileTest::neverWaitsForAPipe()
{
    QVERIFY(::mkfifo(path("pipe2").c_str(), 0600) == 0);
    const FileDescriptor file(::creat(path("regular").c_str(), 0600));
    std::filesystem::create_hard_link(path("regular"), path("swapped"));
    std::atomic_bool isOver = false;
    std::thread swapper([&] {
        while (!isOver)
            ::renameat2(AT_FDCWD, path("pipe2").c_str(), AT_FDCWD, path("swapped").c_str(), RENAME_EXCHANGE);
    });
    for (int round = 0; round < 20000; ++round) {
        const auto opened = openRegularFile(path("swapped"));
        if (struct stat status {}; opened && (::fstat(opened->get(), &status) != 0 || !S_ISREG(status.st_mode)))
            QTest::qFail("opened the pipe", __FILE__, __LINE__);
    }
    isOver = true;
    swapper.join();
}

QTEST_GUILESS_MAIN(OpenRegularFileTest)
#include "tst_openRegularFile.moc"
