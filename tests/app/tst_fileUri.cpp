// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/fileUri.h"
#include <QTest>

using namespace Varlo;

class FileUriTest final : public QObject {
    Q_OBJECT
private slots:
    void comesBack_data();
    void comesBack();
    void takes_data();
    void takes();
};

void FileUriTest::comesBack_data()
{
    QTest::addColumn<QByteArray>("path");
    QTest::newRow("spaces and signs") << QByteArray("/a b/#1?&=.txt");
    QTest::newRow("percent") << QByteArray("/100%41");
    QTest::newRow("line break") << QByteArray("/two\nlines");
    QTest::newRow("UTF-8") << QByteArray("/é漢\xf0\x9f\x98\x80");
    QTest::newRow("not UTF-8") << QByteArray("/\xe9t\xff\x80");
}

void FileUriTest::comesBack()
{
    QFETCH(QByteArray, path);
    const QByteArray uri = fileUri(path.toStdString());
    QVERIFY(std::all_of(uri.begin(), uri.end(), [](char byte) { return byte > ' ' && byte < 127; }));
    QCOMPARE(pathOfFileUri(uri), std::filesystem::path(path.toStdString()));
}

void FileUriTest::takes_data()
{
    QTest::addColumn<QByteArray>("uri");
    QTest::addColumn<QByteArray>("path"); // "" where it is refused
    const QByteArray refused;
    QTest::newRow("no host") << QByteArray("file:///a%20b") << QByteArray("/a b");
    QTest::newRow("one slash") << QByteArray("file:/a") << QByteArray("/a");
    QTest::newRow("this host by name") << QByteArray("file://localhost/a") << QByteArray("/a");
    QTest::newRow("capitals") << QByteArray("FILE:///a") << QByteArray("/a");
    QTest::newRow("raw bytes, as some programs send") << QByteArray("file:///\xc3\xa9") << QByteArray("/\xc3\xa9");
    QTest::newRow("another host") << QByteArray("file://server/a") << refused;
    QTest::newRow("another scheme") << QByteArray("https:///a") << refused;
    QTest::newRow("a plain path") << QByteArray("/a") << refused;
    QTest::newRow("relative") << QByteArray("file:a") << refused;
    QTest::newRow("nothing") << QByteArray("") << refused;
    QTest::newRow("scheme alone") << QByteArray("file:") << refused;
    QTest::newRow("a NUL that would cut the path") << QByteArray("file:///a%00b") << refused;
    QTest::newRow("a fragment") << QByteArray("file:///a#b") << refused;
}

void FileUriTest::takes()
{
    QFETCH(QByteArray, uri);
    QFETCH(QByteArray, path);
    const auto taken = pathOfFileUri(uri);
    QCOMPARE(taken ? QByteArray::fromStdString(taken->native()) : QByteArray(), path);
}

QTEST_GUILESS_MAIN(FileUriTest)
#include "tst_fileUri.moc"
