// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "renaming/isSharedAlone.h"

#include "renaming/planRenames.h"
#include <QtTest>

using namespace Varlo;
using namespace Qt::StringLiterals;
using namespace std::string_literals;

class IsSharedAloneTest : public QObject {
    Q_OBJECT
private slots:
    void looksAtThePath_data();
    void looksAtThePath();
    void saysWhatToDo();
};

void IsSharedAloneTest::looksAtThePath_data()
{
    QTest::addColumn<std::string>("path");
    QTest::addColumn<bool>("isAlone");
    QTest::newRow("single file") << "/run/user/1000/doc/3fa91c2d/scan.pdf"s << true;
    QTest::newRow("single file, older place") << "/run/flatpak/doc/3fa91c2d/scan.pdf"s << true;
    QTest::newRow("single file, as seen from outside")
        << "/run/user/1000/doc/by-app/com.varlo.Varlo/3fa91c2d/scan.pdf"s << true;
    QTest::newRow("shared folder itself") << "/run/user/1000/doc/3fa91c2d/Scans"s << true;
    QTest::newRow("file of a shared folder") << "/run/user/1000/doc/3fa91c2d/Scans/scan.pdf"s << false;
    QTest::newRow("same, as seen from outside")
        << "/run/user/1000/doc/by-app/com.varlo.Varlo/3fa91c2d/Scans/scan.pdf"s << false;
    QTest::newRow("same below it") << "/run/flatpak/doc/3fa91c2d/Scans/2025/scan.pdf"s << false;
    QTest::newRow("folder of that name at home") << "/home/ann/run/user/1000/doc/3fa91c2d/scan.pdf"s << false;
    QTest::newRow("no user's folder") << "/run/user/ann/doc/3fa91c2d/scan.pdf"s << false;
    QTest::newRow("other folder of the session") << "/run/user/1000/gvfs/3fa91c2d/scan.pdf"s << false;
    QTest::newRow("portal itself") << "/run/user/1000/doc"s << false;
    QTest::newRow("nothing behind the application") << "/run/user/1000/doc/by-app/com.varlo.Varlo"s << false;
}

void IsSharedAloneTest::looksAtThePath()
{
    QFETCH(std::string, path);
    QTEST(isSharedAlone(path), "isAlone");
}

void IsSharedAloneTest::saysWhatToDo()
{
    const RenameRequest request { "/run/user/1000/doc/3fa91c2d/scan.pdf", u"Invoice"_s, std::nullopt };
    const auto outcomes = planRenames({ &request, 1 });
    QVERIFY(!outcomes.front());
    QVERIFY(description(outcomes.front().error()).text().contains(u"folder"_s));
    // A grant of the made-up folder would not help, so there is no question for one.
    QVERIFY(!isPermissionDenied(outcomes.front().error()));
}

QTEST_GUILESS_MAIN(IsSharedAloneTest)
#include "tst_isSharedAlone.moc"
