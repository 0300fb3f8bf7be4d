// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "extraction/worker/extractContent.h"

#include "extraction/describe.h"
#include "platform/FileDescriptor.h"
#include <fcntl.h>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace Varlo;

struct Flags final : FileFlags {
    bool answer;
    mutable int questions = 0;
    explicit Flags(bool isOnlineOnly)
        : answer(isOnlineOnly)
    {
    }
    bool isOnlineOnly(const std::filesystem::path &) const override { return ++questions > 0 && answer; }
};

class ExtractContentTest : public QObject {
    Q_OBJECT
private slots:
    void reads_data();
    void reads();
    void refuses_data();
    void refuses();

private:
    std::filesystem::path path(const char *name) const { return m_folder.path().toStdString() + '/' + name; }

    QTemporaryDir m_folder;
    FileReaders m_readers;
};

void ExtractContentTest::reads_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("outcome");
    const QByteArray text = "<b>twenty</b>\n\ncharacters"_ba;
    const QString content = u"text: <b>twenty</b> characters"_s;
    QTest::newRow("extension in capitals") << "Report.TXT"_ba << text << content;
    QTest::newRow("markup stays") << "page.html"_ba << text << content;
    QTest::newRow("name that is no UTF-8") << "caf\xE9.csv"_ba << text << content;
    QTest::newRow("no extension") << "notes"_ba << text << u"not supported yet"_s;
    QTest::newRow("film") << "clip.mp4"_ba << text << u"not supported yet"_s;
    QTest::newRow("empty") << "empty.txt"_ba
                           << ""_ba << u"no text found"_s;
    QTest::newRow("Latin-1") << "old.txt"_ba << text + " caf\xE9" << u"no text found"_s;
}

void ExtractContentTest::reads()
{
    QFETCH(QByteArray, name);
    QFETCH(QByteArray, bytes);
    const std::filesystem::path file = path(name.constData());
    QVERIFY(
        ::write(FileDescriptor(::creat(file.c_str(), 0600)).get(), bytes.constData(), bytes.size()) == bytes.size());
    QTEST(describe(extractContent(file, Flags(false), m_readers)), "outcome");
    // Only a file without a first byte can be a placeholder; of the others nobody asks.
    const Flags cloud(true);
    QCOMPARE(describe(extractContent(file, cloud, m_readers)).startsWith(u"unreadable: This file is online-only."),
        bytes.isEmpty());
    QCOMPARE(cloud.questions, bytes.isEmpty() ? 1 : 0);
}

void ExtractContentTest::refuses_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QString>("words");
    std::filesystem::create_symlink("/proc/self/mem", path("memory.txt"));
    std::filesystem::create_directories(path("folder.txt/inside"));
    std::filesystem::permissions(path("folder.txt/inside"), std::filesystem::perms::none);
    QVERIFY(FileDescriptor(::creat(path("secret.txt").c_str(), 0)).isOpen());
    QTest::newRow("missing") << "nowhere.txt"_ba << qt_error_string(ENOENT);
    QTest::newRow("folder") << "folder.txt"_ba << u"This is not a regular file."_s;
    QTest::newRow("opens, but cannot be read") << "memory.txt"_ba << qt_error_string(EIO);
    QTest::newRow("refused") << "secret.txt"_ba << qt_error_string(EACCES);
    QTest::newRow("behind a folder that refuses") << "folder.txt/inside/x.txt"_ba << qt_error_string(EACCES);
}

void ExtractContentTest::refuses()
{
    QVERIFY2(::geteuid() != 0, "run by the administrator, to whom nothing is refused");
    QFETCH(QByteArray, name);
    QFETCH(QString, words);
    QCOMPARE(describe(extractContent(path(name.constData()), Flags(false), m_readers)), u"unreadable: "_s + words);
    QCOMPARE(describe(extractContent(path(name.constData()), Flags(true), m_readers)),
        u"unreadable: This file is online-only. Download it in its cloud app first, then try again."_s);
}

QTEST_GUILESS_MAIN(ExtractContentTest)
#include "tst_extractContent.moc"
