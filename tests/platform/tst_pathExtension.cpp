// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/pathExtension.h"

#include <QTest>

using namespace Varlo;

class PathExtensionTest : public QObject {
    Q_OBJECT
private slots:
    void dividesNames_data();
    void dividesNames();
};

void PathExtensionTest::dividesNames_data()
{
    QTest::addColumn<QByteArray>("path");
    QTest::addColumn<QByteArray>("base");
    QTest::addColumn<QByteArray>("extension");
    const auto row = [](const char *name, const char *path, const char *base, const char *extension) {
        QTest::newRow(name) << QByteArray(path) << QByteArray(base) << QByteArray(extension);
    };
    row("capitals are kept for renaming", "/a/Report.PDF", "Report", "PDF");
    row("only the last dot counts", "a.tar.gz", "a.tar", "gz");
    row("dot of a folder", "/v1.2/notes", "notes", "");
    row("hidden file", "/a/.txt", ".txt", "");
    row("hidden file with an extension", ".notes.md", ".notes", "md");
    row("dot at the end is part of the base", "notes.", "notes.", "");
    row("nothing but dots", "/a/...", "...", "");
    row("slash at the end", "/a/old.app/", "old", "app");
    row("bytes that are no UTF-8, one a Latin-1 capital", "\xFF.T\xC9T", "\xFF", "T\xC9T");
}

void PathExtensionTest::dividesNames()
{
    QFETCH(QByteArray, path);
    QFETCH(QByteArray, extension);
    const std::filesystem::path given(path.toStdString());
    QTEST(QByteArray::fromStdString(baseName(given)), "base");
    QCOMPARE(QByteArray::fromStdString(pathExtension(given)), extension);
    QCOMPARE(QByteArray::fromStdString(lowerCaseExtension(given)), extension.toLower()); // Qt's touches ASCII alone
}

QTEST_GUILESS_MAIN(PathExtensionTest)
#include "tst_pathExtension.moc"
