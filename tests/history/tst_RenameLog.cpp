// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "history/RenameLog.h"

#include "fakes/FakeClock.h"
#include "fakes/FakePreferenceStore.h"
#include "history/applyHistoryChanges.h"
#include "renaming/TestFolder.h"
#include <QAbstractItemModelTester>
#include <QCoroTask>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QtTest>

using namespace Varlo;
using namespace Qt::StringLiterals;
using std::filesystem::path;

namespace {

struct FakePanel final : FolderAccessPanel {
    [[nodiscard]] QCoro::Task<std::optional<path>> ask(path) override { co_return std::nullopt; }
};

/// One process with its own idea of the log; several may share preferences and journal.
struct Process {
    explicit Process(PreferenceStore &store, const path &state)
        : preferences(store)
        , journal(state)
    {
    }
    FakeClock clock;
    Preferences preferences;
    FakePanel panel;
    RenameJournal journal;
    FileRenamer renamer { journal, clock };
    FolderAccess access { preferences, panel };
    RenameLog log { preferences, renamer, access };

    path rename(const path &file, const QString &name)
    {
        const auto renamed = renamer.renameDirectly({ file, name, std::nullopt });
        if (renamed)
            log.record(file, *renamed);
        return renamed.value_or(path());
    }
    RenameLog::RevertOutcome revert(std::size_t entry) { return QCoro::waitFor(log.revert(log.entries()[entry].id())); }
};

/// The restored path; "failed" for an error.
std::optional<path> restored(const RenameLog::RevertOutcome &outcome) { return outcome.value_or(path("failed")); }

} // namespace

class RenameLogTest : public QObject {
    Q_OBJECT
private slots:
    void init();
    void readsAndWritesTheArray();
    void refusesData_data();
    void refusesData();
    void survivesEveryFlip();
    void identifiesEntries();
    void keepsTheNewestThousand();
    void recognisesNames();
    void storesOnceAnAction();
    void logsWhatADeadProcessRenamed();
    void changesTwiceAreChangesOnce();
    void keepsADamagedLog();
    void keepsRenamesWhilePreferencesRefuse();
    void revertsExactly_data();
    void revertsExactly();
    void revertsToAFreeNumber();
    void refusesToRevert();
    void revertsLatest();
    void tellsUnreadableFromEmpty_data();
    void tellsUnreadableFromEmpty();
    void revertsOnceForTwoProcesses();
    void clearsForGood();

private:
    std::optional<TestFolder> m_folder;
    std::optional<TestFolder> m_state;
    std::unique_ptr<FakePreferenceStore> m_store;

    std::unique_ptr<Process> start() { return std::make_unique<Process>(*m_store, m_state->path()); }
    RenameLogEntries stored() const
    {
        const auto value = m_store->value(u"renameLog"_s, PreferenceType::Data);
        return decodeRenameLog(value ? std::get<QByteArray>(*value) : "[]").value();
    }
    void store(const QByteArray &data) { m_store->values.insert_or_assign(u"renameLog"_s, data); }
};

void RenameLogTest::init()
{
    m_folder.emplace();
    m_state.emplace();
    m_store = std::make_unique<FakePreferenceStore>();
}

void RenameLogTest::readsAndWritesTheArray()
{
    const RenameLogEntries entries {
        { "/a/x.pdf", "/a/y.pdf", 730944000.5, std::nullopt },
        { "/a/\xFF.pdf", "/a/\xC3\xA9\n\".pdf", 0.1, 790000000.123456 },
    };
    const QByteArray data = encodeRenameLog(entries);
    QCOMPARE(decodeRenameLog(data), entries);
    const QJsonArray array = QJsonDocument::fromJson(data).array();
    QCOMPARE(array[0].toObject(),
        (QJsonObject { { u"fromPath"_s, u"/a/x.pdf"_s }, { u"toPath"_s, u"/a/y.pdf"_s }, { u"date"_s, 730944000.5 } }));
    QCOMPARE(array[1].toObject().keys(),
        (QStringList { u"date"_s, u"fromPath"_s, u"fromPathBytes"_s, u"toPath"_s, u"undoneAt"_s }));
}

void RenameLogTest::refusesData_data()
{
    QTest::addColumn<QByteArray>("data");
    const QByteArray good = R"({"fromPath":"/a","toPath":"/b","date":1})";
    QTest::newRow("an object for the array") << good;
    QTest::newRow("cut short") << "[" + good;
    QTest::newRow("one entry that is none") << "[" + good + ",1]";
    QTest::newRow("date as text") << QByteArray(R"([{"fromPath":"/a","toPath":"/b","date":"1"}])");
    QTest::newRow("no former path") << QByteArray(R"([{"toPath":"/b","date":1}])");
    QTest::newRow("bytes that are no base64")
        << QByteArray(R"([{"fromPath":"/a","fromPathBytes":"*","toPath":"/b","date":1}])");
    QTest::newRow("nested without end") << QByteArray(1'000'000, '[');
}

void RenameLogTest::refusesData()
{
    QFETCH(QByteArray, data);
    QVERIFY(!decodeRenameLog(data));
    store(data);
    QVERIFY(start()->log.entries().empty());
}

void RenameLogTest::survivesEveryFlip()
{
    const QByteArray good = encodeRenameLog({ { "/a/x", "/a/\xFFy", 1.5, 2.5 } });
    for (qsizetype at = 0; at < good.size(); ++at) {
        for (const char flip : { '\x01', '\x20', '\x7F' }) {
            QByteArray damaged = good;
            damaged[at] = static_cast<char>(damaged[at] ^ flip);
            const auto entries = decodeRenameLog(damaged);
            for (const RenameLogEntry &entry : entries.value_or(RenameLogEntries {}))
                QVERIFY(!entry.id().isEmpty() && timeFromSecondsSince2001(entry.date).toMSecsSinceEpoch() < 1e15);
        }
        QVERIFY(!decodeRenameLog(good.first(at)));
    }
    QVERIFY(!timeFromSecondsSince2001(1e308).isValid());
}

void RenameLogTest::identifiesEntries()
{
    const RenameLogEntry entry { "/old", "/Volumes/Disk/report.pdf", 730944000.5, std::nullopt };
    QCOMPARE(entry.id(), u"/Volumes/Disk/report.pdf@730944000.5"_s);
    // Two renames to one path within one tick of the clock.
    const auto process = start();
    for (const char *name : { "a.pdf", "b.pdf" })
        std::filesystem::remove(process->rename(m_folder->create(name), u"Same"_s));
    QCOMPARE(process->log.entries()[0].toPath, process->log.entries()[1].toPath);
    QVERIFY(process->log.entries()[0].id() != process->log.entries()[1].id());
}

void RenameLogTest::keepsTheNewestThousand()
{
    const auto process = start();
    const QAbstractItemModelTester tester(&process->log, QAbstractItemModelTester::FailureReportingMode::QtTest);
    {
        const auto action = process->log.beginAction();
        for (int number = 0; number <= 1000; ++number)
            process->log.record("/a/" + std::to_string(number), "/b/" + std::to_string(number));
    }
    QCOMPARE(process->log.rowCount(), 1000);
    QCOMPARE(process->log.entries().front().fromPath, "/a/1");
    QVERIFY(!process->log.hasStandingRename("/b/0") && process->log.hasStandingRename("/b/1000"));
    QCOMPARE(stored(), process->log.entries());
}

void RenameLogTest::recognisesNames()
{
    store(encodeRenameLog(
        { { "/a/x", "/a/Caf\xC3\xA9", 1, {} }, { "/a/y", "/a/undone", 2, 3 }, { "/a/z", "/a/\xFF", 4, {} } }));
    const auto process = start();
    QVERIFY(process->log.hasStandingRename("/a/Caf\xC3\xA9"));
    QVERIFY(process->log.hasStandingRename("/elsewhere/Cafe\xCC\x81"));
    QVERIFY(!process->log.hasStandingRename("/a/caf\xC3\xA9"));
    QVERIFY(!process->log.hasStandingRename("/a/undone"));
    QVERIFY(process->log.hasStandingRename("/b/\xFF") && !process->log.hasStandingRename("/b/\xFE"));
}

void RenameLogTest::storesOnceAnAction()
{
    const auto process = start();
    int writes = 0;
    connect(m_store.get(), &PreferenceStore::changed, this, [&] { ++writes; });
    {
        const auto action = process->log.beginAction();
        std::vector<RenameRequest> requests;
        for (int number = 0; number < 200; ++number)
            requests.push_back({ m_folder->create(std::to_string(number)), QString::number(1000 + number), {} });
        process->renamer.renameAll(requests, [&](std::size_t index, const FileRenamer::Outcome &outcome) {
            process->log.record(requests[index].path, *outcome);
            return FileRenamer::Next::GoOn;
        });
        QCOMPARE(writes, 0);
        // Another process that starts meanwhile sees them, and stores them for us.
        QCOMPARE(start()->log.entries().size(), 200u);
    }
    QVERIFY(writes <= 2);
    QCOMPARE(stored().size(), 200u);
    QCOMPARE(process->log.entries(), stored());
    QVERIFY(process->journal.isEmpty());
}

void RenameLogTest::logsWhatADeadProcessRenamed()
{
    const path from = m_folder->create("a.pdf");
    path to;
    {
        RenameJournal journal(m_state->path());
        const FakeClock clock;
        to = FileRenamer(journal, clock).renameDirectly({ from, u"b"_s, {} }).value();
    }
    QCOMPARE(start()->log.entries().size(), 1u);
    const auto second = start();
    QCOMPARE(second->log.entries().size(), 1u);
    QCOMPARE(second->log.entries()[0].fromPath, from);
    QVERIFY(second->revert(0));
    QVERIFY(std::filesystem::exists(from) && !std::filesystem::exists(to));
}

void RenameLogTest::changesTwiceAreChangesOnce()
{
    std::vector<HistoryChange> changes;
    for (int number = 0; number < 1500; ++number)
        changes.push_back(RenameAdded { "/a", "/b/" + std::to_string(number), 1.0 * number });
    changes.push_back(RenameTakenBack { "/b/1499", 1499, 2000 });
    for (const bool isCleared : { false, true }) {
        if (isCleared) {
            changes.push_back(HistoryCleared {});
            changes.push_back(RenameAdded { "/a", "/b", 3000 });
        }
        const RenameLogEntries once = applyHistoryChanges({ { "/x", "/y", 0.5, {} } }, changes);
        QCOMPARE(once.size(), isCleared ? 1u : 1000u);
        QCOMPARE(applyHistoryChanges(once, changes), once);
    }
}

void RenameLogTest::keepsADamagedLog()
{
    store("damaged");
    const auto process = start();
    QCOMPARE(m_store->copies, 0);
    process->rename(m_folder->create("a"), u"b"_s);
    QCOMPARE(m_store->copies, 1);
    QCOMPARE(stored().size(), 1u);
}

void RenameLogTest::keepsRenamesWhilePreferencesRefuse()
{
    m_store->failure = SystemError { ENOSPC };
    {
        const auto process = start();
        process->rename(m_folder->create("a"), u"b"_s);
        process->log.record("/by/another", "/means");
        QCOMPARE(process->log.entries().size(), 2u);
    }
    QCOMPARE(start()->log.entries().size(), 2u);
    m_store->failure.reset();
    start();
    QCOMPARE(stored().size(), 2u);
}

void RenameLogTest::revertsExactly_data()
{
    QTest::addColumn<std::string>("name");
    QTest::newRow("plain") << std::string("Scan.pdf");
    QTest::newRow("hidden") << std::string(".Scan.pdf");
    QTest::newRow("characters that a new name may not have") << std::string("12:30 \"x\" ?.pdf");
    QTest::newRow("line break and spaces") << std::string(" a\n  b .pdf");
    QTest::newRow("bytes that are no text") << std::string("a\xFF.pdf");
    QTest::newRow("255 bytes") << std::string(251, 'x') + ".pdf";
}

void RenameLogTest::revertsExactly()
{
    QFETCH(std::string, name);
    const auto process = start();
    const path from = m_folder->create(name);
    const path to = process->rename(from, u"Invoice"_s);
    std::vector<path> reported;
    connect(&process->log, &RenameLog::reverted, this, [&](const path &renamed, const path &restored) {
        reported = { renamed, restored };
    });
    const auto outcome = process->revert(0);
    QVERIFY(outcome && *outcome == from);
    QCOMPARE(reported, (std::vector<path> { to, from }));
    QCOMPARE(TestFolder::content(from), name);
    QCOMPARE(m_folder->names().size(), 1u);
    QVERIFY(!process->log.hasStandingRename(to));
    QVERIFY(stored().front().undoneAt);
    const auto again = process->revert(0);
    QVERIFY(again && !*again);
}

void RenameLogTest::revertsToAFreeNumber()
{
    const auto process = start();
    const path from = m_folder->create("Scan.pdf");
    process->rename(from, u"Invoice"_s);
    m_folder->create("Scan.pdf", "another");
    const auto outcome = process->revert(0);
    QVERIFY(outcome && **outcome == *m_folder / "Scan 2.pdf");
    QCOMPARE(TestFolder::content(from), "another");
    // The extension stays the one that the file has now.
    process->log.record(*m_folder / "old.pdf", m_folder->create("new.txt"));
    QCOMPARE(restored(process->revert(1)), std::optional<path>(*m_folder / "old.txt"));
    // An entry whose file has its former name already is marked all the same.
    process->log.record(from, from);
    QCOMPARE(restored(process->revert(2)), std::optional<path>(from));
    QVERIFY(stored()[2].undoneAt);
}

void RenameLogTest::refusesToRevert()
{
    const auto process = start();
    const path to = process->rename(m_folder->create("a"), u"b"_s);
    std::filesystem::remove(to);
    const auto outcome = process->revert(0);
    QVERIFY(!outcome);
    QCOMPARE(outcome.error().text(), u"The file could not be found at its renamed location."_s);
    QVERIFY(process->log.entries().front().isStanding());
    const auto unknown = QCoro::waitFor(process->log.revert(u"nobody's"_s));
    QVERIFY(unknown && !*unknown);
}

void RenameLogTest::revertsLatest()
{
    const auto process = start();
    process->rename(m_folder->create("a"), u"1"_s);
    process->rename(m_folder->create("b"), u"2"_s);
    for (const char *name : { "b", "a" })
        QCOMPARE(restored(QCoro::waitFor(process->log.revertLatest())), std::optional<path>(*m_folder / name));
    QCOMPARE(restored(QCoro::waitFor(process->log.revertLatest())), std::optional<path>());
}

void RenameLogTest::tellsUnreadableFromEmpty_data()
{
    QTest::addColumn<bool>("arePreferencesRead");
    QTest::addColumn<bool>("isJournalRead");
    QTest::newRow("both read, nothing logged") << true << true;
    QTest::newRow("preferences refused, no journal yet") << false << true;
    QTest::newRow("journal refused") << true << false;
}

void RenameLogTest::tellsUnreadableFromEmpty()
{
    QFETCH(bool, arePreferencesRead);
    QFETCH(bool, isJournalRead);
    const path journal = *m_state / "renames.journal";
    if (!arePreferencesRead)
        m_store->readFailure = SystemError { EACCES };
    if (!isJournalRead)
        std::filesystem::create_symlink(journal, journal); // ELOOP, for root too
    const auto process = start();
    const bool isRead = arePreferencesRead && isJournalRead;
    QCOMPARE(!process->log.readError(), isRead);
    QCOMPARE(QCoro::waitFor(process->log.revertLatest()).has_value(), isRead);
    QCOMPARE(QCoro::waitFor(process->log.revert(u"some id"_s)).has_value(), isRead);

    m_store->readFailure.reset();
    std::filesystem::remove(journal);
    QVERIFY(QCoro::waitFor(process->log.revertLatest()));
    QVERIFY2(!process->log.readError(), "it was read since");
}

void RenameLogTest::revertsOnceForTwoProcesses()
{
    const auto ours = start();
    const auto theirs = start();
    ours->rename(m_folder->create("a"), u"1"_s);
    ours->rename(m_folder->create("b"), u"2"_s);
    QVERIFY(theirs->revert(1));
    const auto late = ours->revert(1);
    QVERIFY(late && !*late);
    QVERIFY(theirs->log.clear());
    ours->rename(m_folder->create("c"), u"3"_s);
    QCOMPARE(stored().size(), 1u);
    QCOMPARE(ours->log.entries(), stored());
    QCOMPARE(theirs->log.entries(), stored());
}

void RenameLogTest::clearsForGood()
{
    const auto process = start();
    process->rename(m_folder->create("a"), u"1"_s);
    // The preferences refuse for now: the journal has to remember that the log was cleared.
    m_store->failure = SystemError { EROFS };
    QVERIFY(process->log.clear());
    process->log.record("/a", "/b");
    QCOMPARE(start()->log.entries().size(), 1u);
    m_store->failure.reset();
    QCOMPARE(start()->log.entries().size(), 1u);
    QCOMPARE(stored().front().toPath, "/b");
}

QTEST_GUILESS_MAIN(RenameLogTest)
#include "tst_RenameLog.moc"
