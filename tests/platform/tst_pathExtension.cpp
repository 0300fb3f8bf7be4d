// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/pathExtension.h"

#include <QTest>

using namespace Qt::StringLiterals;
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
    QTest::addColumn<QByteArray>("lowerCase");
    QTest::newRow("capitals are kept for renaming") << "/a/Report.PDF"_ba
                                                    << "Report"_ba
                                                    << "PDF"_ba
                                                    << "pdf"_ba;
    QTest::newRow("only the last dot counts") << "a.tar.gz"_ba
                                              << "a.tar"_ba
                                              << "gz"_ba
                                              << "gz"_ba;
    QTest::newRow("dot of a folder") << "/v1.2/notes"_ba
                                     << "notes"_ba
                                     << ""_ba
                                     << ""_ba;
    QTest::newRow("hidden file") << "/a/.txt"_ba
                                 << ".txt"_ba
                                 << ""_ba
                                 << ""_ba;
    QTest::newRow("hidden file with an extension") << ".notes.md"_ba
                                                   << ".notes"_ba
                                                   << "md"_ba
                                                   << "md"_ba;
    QTest::newRow("dot at the end is part of the base") << "notes."_ba
                                                        << "notes."_ba
                                                        << ""_ba
                                                        << ""_ba;
    QTest::newRow("nothing but dots") << "/a/..."_ba
                                      << "..."_ba
                                      << ""_ba
                                      << ""_ba;
    QTest::newRow("slash at the end") << "/a/old.app/"_ba
                                      << "old"_ba
                                      << "app"_ba
                                      << "app"_ba;
    QTest::newRow("bytes that are no UTF-8") << "\xFF.T\xC9T"_ba
                                             << "\xFF"_ba
                                             << "T\xC9T"_ba
                                             << "t\xC9t"_ba;
    QTest::newRow("capitals beyond ASCII") << "a.ÉI"_ba
                                           << "a"_ba
                                           << "ÉI"_ba
                                           << "Éi"_ba;
}

void PathExtensionTest::dividesNames()
{
    QFETCH(QByteArray, path);
    const std::filesystem::path given(path.toStdString());
    QTEST(QByteArray::fromStdString(baseName(given)), "base");
    QTEST(QByteArray::fromStdString(pathExtension(given)), "extension");
    QTEST(QByteArray::fromStdString(lowerCaseExtension(given)), "lowerCase");
}

QTEST_GUILESS_MAIN(PathExtensionTest)
#include "tst_pathExtension.moc"
