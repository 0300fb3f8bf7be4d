// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "history/HistoryView.h"

#include "fakes/FakeClock.h"
#include "fakes/FakeFolderAccessPanel.h"
#include "fakes/FakePreferenceStore.h"
#include "renaming/TestFolder.h"
#include <fstream>
#include <QAbstractItemModelTester>
#include <QCoroTask>
#include <QTest>

using namespace Varlo;
using namespace Qt::StringLiterals;
using std::filesystem::path;

class HistoryViewTest : public QObject {
    Q_OBJECT
private slots:
    void init();
    void finds_data();
    void finds();
    void groupsByDay();
    void selectsOnlyWhatStands();
    void revertsWhatIsSelected();
    void startsAnewWhenReset();
    void showsNothingThatActs();

private:
    struct Log {
        TestFolder folder, state;
        FakePreferenceStore store;
        Preferences preferences { store };
        FakeClock clock;
        FakeFolderAccessPanel panel;
        RenameJournal journal { state.path() };
        FileRenamer renamer { journal, clock };
        FolderAccess access { preferences, panel };
        RenameLog log { preferences, renamer, access };
        HistoryView view { log, clock };
    };
    std::optional<Log> m_log;

    /// Logs the rename; what it led to is there when it is to be taken back.
    void rename(const std::string &from, const std::string &to, bool isThere = true)
    {
        if (isThere)
            std::ofstream(m_log->folder.path() / to) << "x";
        m_log->log.record(m_log->folder.path() / from, m_log->folder.path() / to);
    }
    QStringList listed(int role = RenameLog::ToNameRole) const
    {
        QStringList all;
        for (int row = 0; row < m_log->view.rowCount(); ++row)
            all.append(m_log->view.index(row, 0).data(role).toString());
        return all;
    }
};

void HistoryViewTest::init() { m_log.emplace(); }

void HistoryViewTest::finds_data()
{
    QTest::addColumn<QString>("search");
    QTest::addColumn<QStringList>("found");
    QTest::newRow("oldest first") << u""_s << QStringList { u"c.txt"_s, u"b.txt"_s, u"My Invoice.txt"_s };
    QTest::newRow("spaces looked for") << u" \t"_s << QStringList { u"c.txt"_s, u"b.txt"_s, u"My Invoice.txt"_s };
    QTest::newRow("case told apart, old name passed over")
        << u" INVOICE "_s << QStringList { u"b.txt"_s, u"My Invoice.txt"_s };
    QTest::newRow("folder looked in") << u"tst_historyview"_s << QStringList {};
}

void HistoryViewTest::finds()
{
    QFETCH(QString, search);
    const QAbstractItemModelTester tester(&m_log->view, QAbstractItemModelTester::FailureReportingMode::QtTest);
    rename("a.txt", "My Invoice.txt");
    rename("old invoice.txt", "b.txt");
    m_log->view.setSearchText(search);
    rename("new.txt", "c.txt");
    QTEST(listed(), "found");
    QCOMPARE(m_log->view.savedCount(), 3);
}

void HistoryViewTest::groupsByDay()
{
    const auto renamedAt = [&](int daysAgo, QTime time) {
        m_log->clock.time = QDateTime(QDate(2025, 3, 6).addDays(-daysAgo), time);
        rename("a.txt", "b.txt");
    };
    QLocale::setDefault(QLocale(u"en_US"_s));
    renamedAt(2, QTime(12, 0));
    renamedAt(1, QTime(23, 59, 59));
    renamedAt(0, QTime(0, 0));
    m_log->clock.time = QDateTime(QDate(2025, 3, 6), QTime(23, 0));
    QCOMPARE(listed(HistoryView::DayRole), (QStringList { u"Today"_s, u"Yesterday"_s, u"Mar 4, 2025"_s }));
}

void HistoryViewTest::selectsOnlyWhatStands()
{
    rename("a.txt", "1.txt");
    rename("b.txt", "2.txt");
    m_log->view.revert(0);
    m_log->view.toggle(0);
    QCOMPARE(m_log->view.selectedCount(), 0);
    m_log->view.selectAll();
    QCOMPARE(listed(HistoryView::SelectedRole), (QStringList { u"false"_s, u"true"_s }));
    m_log->view.toggle(1);
    QCOMPARE(m_log->view.selectedCount(), 0);
    m_log->view.toggle(1);
    m_log->view.revert(1); // with its own button
    QCOMPARE(m_log->view.selectedCount(), 0);
}

void HistoryViewTest::revertsWhatIsSelected()
{
    rename("a.txt", "1.txt");
    rename("b.txt", "2.txt", false);
    rename("c.txt", "3.txt");
    rename("d.txt", "4.txt");
    for (const int row : { 1, 2, 3 })
        m_log->view.toggle(row);
    m_log->view.revertSelected();
    QTRY_COMPARE_WITH_TIMEOUT(
        m_log->view.lastError(), u"The file could not be found at its renamed location."_s, 60'000);
    QCOMPARE(m_log->view.selectedCount(), 0);
    QCOMPARE(listed(RenameLog::UndoneRole), (QStringList { u"false"_s, u"true"_s, u"false"_s, u"true"_s }));
    m_log->view.revert(0);
    QTRY_COMPARE_WITH_TIMEOUT(m_log->view.lastError(), QString(), 60'000);
}

void HistoryViewTest::startsAnewWhenReset()
{
    rename("a.txt", "1.txt", false);
    m_log->view.toggle(0);
    m_log->view.setSearchText(u"x"_s);
    m_log->view.revertLatest();
    QTRY_VERIFY_WITH_TIMEOUT(!m_log->view.lastError().isEmpty(), 60'000);
    m_log->view.reset();
    QCOMPARE(m_log->view.lastError() + m_log->view.searchText(), QString());
    QCOMPARE(m_log->view.selectedCount(), 0);
    QCOMPARE(listed().size(), 1);
}

void HistoryViewTest::showsNothingThatActs()
{
    rename("a\n\xff.txt", "b\xe2\x80\xae.txt");
    QCOMPARE(listed(RenameLog::FromNameRole), QStringList { u"a\\n\\377.txt"_s });
    QCOMPARE(listed(), QStringList { u"b\\u202e.txt"_s });
    QVERIFY(!m_log->view.data({}, RenameLog::ToNameRole).isValid());
}

QTEST_GUILESS_MAIN(HistoryViewTest)
#include "tst_HistoryView.moc"
