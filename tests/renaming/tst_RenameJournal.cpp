// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "renaming/RenameJournal.h"

#include "renaming/TestFolder.h"
#include <QtTest>
#include <sys/stat.h>

using namespace Varlo;
using namespace Qt::StringLiterals;
using Names = std::vector<std::string>;
using std::filesystem::path;

class RenameJournalTest : public QObject {
    Q_OBJECT
private slots:
    void settlesWhatADeadProcessBegan_data();
    void settlesWhatADeadProcessBegan();
    void waitsForADriveThatIsAway();
    void hearsOfOtherProcesses_data();
    void hearsOfOtherProcesses();
    void keepsWhatHasNoOutcome();
    void survivesCuts_data();
    void survivesCuts();
    void survivesFlips();
    void setsAsideWhatIsNoFile_data();
    void setsAsideWhatIsNoFile();
};

static RenameIntent intentFor(const path &file, const std::string &to, quint64 id = 7)
{
    RenameIntent intent;
    intent.id = id;
    intent.folder = file.parent_path().native();
    intent.from = file.filename().native();
    intent.to = to;
    intent.date = 1000.5;
    const auto folder = RenameFolder::open(file.parent_path());
    if (const auto found = folder->find(intent.from)) {
        intent.inode = found->identity.inode;
        intent.birthTimeNs = found->birthTimeNs;
    }
    intent.device = 999; // as after a restart
    return intent;
}

static void write(const path &folder, const std::vector<JournalRecord> &records)
{
    RenameJournal journal(folder);
    const auto session = journal.enter();
    QVERIFY(session && journal.append(records, RenameJournal::Durability::Synced));
}

void RenameJournalTest::settlesWhatADeadProcessBegan_data()
{
    QTest::addColumn<QByteArray>("died");
    QTest::addColumn<Names>("left");
    QTest::addColumn<bool>("isLogged");
    QTest::addColumn<int>("notices");
    const auto row = [](const char *died, const Names &left, bool isLogged, int notices = 0) {
        QTest::newRow(died) << QByteArray(died) << left << isLogged << notices;
    };
    row("before the move", { "from" }, false);
    row("behind the move", { "to" }, true);
    row("between link and unlink", { "to" }, true);
    row("before the move, with a link of the user's", { "from", "to" }, false);
    row("before the move, with another file at the name", { "from", "to" }, false);
    row("behind the move, with another file at the old name", { "from", "to" }, true);
    row("and the file was deleted", {}, false, 1);
    row("and the inode went to a new file", { "to" }, false, 1);
}

void RenameJournalTest::settlesWhatADeadProcessBegan()
{
    QFETCH(QByteArray, died);
    const TestFolder folder;
    const TestFolder state;
    const path from = folder.create("from");
    RenameIntent intent = intentFor(from, "to");
    std::vector<JournalRecord> marks;
    if (died.startsWith("behind"))
        std::filesystem::rename(from, folder / "to");
    if (died.startsWith("between") || died.endsWith("user's"))
        std::filesystem::create_hard_link(from, folder / "to");
    if (died.startsWith("between"))
        marks.push_back(LinkingBegun { intent.id });
    if (died.endsWith("at the name"))
        folder.create("to", "other");
    if (died.endsWith("at the old name"))
        folder.create("from", "other");
    if (died.endsWith("deleted"))
        std::filesystem::remove(from);
    if (died.endsWith("new file")) {
        std::filesystem::rename(from, folder / "to");
        intent.birthTimeNs += 1;
    }
    marks.insert(marks.begin(), intent);
    write(state.path(), marks);

    QFETCH(bool, isLogged);
    for (int start = 0; start < 2; ++start) {
        RenameJournal journal(state.path());
        const auto session = journal.enter();
        QVERIFY(session);
        QTEST(folder.names(), "left");
        const HistoryChange renamed = RenameAdded { from, folder / "to", 1000.5 };
        QCOMPARE(journal.changes(), isLogged ? std::vector { renamed } : std::vector<HistoryChange> {});
        QFETCH(int, notices);
        QCOMPARE(journal.takeNotices().size(), start == 0 ? notices : 0); // told once, whoever starts
    }
}

void RenameJournalTest::waitsForADriveThatIsAway()
{
    const TestFolder folder;
    const TestFolder state;
    std::filesystem::create_directory(folder / "drive");
    const path from = folder.create("drive/from");
    const RenameIntent intent = intentFor(from, "to");
    std::filesystem::rename(from, folder / "drive/to");
    write(state.path(), { intent });
    std::filesystem::rename(folder / "drive", folder / "away");
    {
        RenameJournal journal(state.path());
        QVERIFY(journal.enter());
        QCOMPARE(journal.takeNotices().size(), 1);
        const auto session = journal.enter();
        QVERIFY(journal.forgetChanges());
    }
    std::filesystem::rename(folder / "away", folder / "drive");
    RenameJournal journal(state.path());
    QVERIFY(journal.enter());
    QCOMPARE(journal.peek()->size(), 1u);
}

void RenameJournalTest::hearsOfOtherProcesses_data()
{
    QTest::addColumn<bool>("isReserved");
    QTest::newRow("the file grows with each record") << false;
    QTest::newRow("zeros stand behind the records") << true;
}

void RenameJournalTest::hearsOfOtherProcesses()
{
    QFETCH(bool, isReserved);
    const TestFolder state;
    RenameJournal ours(state.path());
    RenameJournal theirs(state.path());
    const JournalRecord first = RenameReported { "/a", "/b", 1 };
    const JournalRecord second = RenameReported { "/b", "/c", 2 };
    const auto append = [](RenameJournal &journal, const JournalRecord &record) {
        const auto session = journal.enter();
        return session && journal.append({ record }, RenameJournal::Durability::Unsynced);
    };
    if (isReserved) {
        const auto session = ours.enter();
        for (int group = 0; group < 2; ++group)
            QVERIFY(ours.append(std::vector<JournalRecord>(500, first), RenameJournal::Durability::Unsynced));
    }
    QVERIFY(append(ours, first));
    QCOMPARE(std::filesystem::file_size(state / "renames.journal") > static_cast<quint64>(ours.size()), isReserved);
    const std::size_t known = ours.peek()->size();
    const quint64 heard = ours.foreignChanges();
    QVERIFY(ours.enter());
    QCOMPARE(ours.foreignChanges(), heard);
    QVERIFY(append(theirs, second));
    QCOMPARE(ours.peek()->size(), known + 1);
    QVERIFY(ours.enter());
    QVERIFY(ours.foreignChanges() > heard);
    {
        const auto session = theirs.enter();
        QVERIFY(theirs.forgetChanges());
    }
    // The same length as one that we know, and yet another file.
    QVERIFY(append(theirs, first) && append(theirs, second));
    const quint64 before = ours.foreignChanges();
    QVERIFY(ours.enter());
    QVERIFY(ours.foreignChanges() > before);
}

void RenameJournalTest::keepsWhatHasNoOutcome()
{
    const TestFolder folder;
    const TestFolder state;
    const RenameIntent done = intentFor(folder.create("a"), "b", 1);
    const RenameIntent open = intentFor(folder.create("c"), "d", 2);
    RenameJournal journal(state.path());
    const auto session = journal.enter();
    QVERIFY(journal.append(std::vector<JournalRecord> { done, open, LinkingBegun { 2 }, RenameDone { 1 } },
        RenameJournal::Durability::Synced));
    QVERIFY(journal.forgetChanges());
    QVERIFY(journal.changes().empty());
    std::filesystem::create_hard_link(folder / "c", folder / "d");
    RenameJournal next(state.path());
    const auto decoded = decodeJournal(QByteArray::fromStdString(TestFolder::content(state / "renames.journal")));
    QCOMPARE(decoded.records, (std::vector<JournalRecord> { open, LinkingBegun { 2 } }));
}

static QByteArray fiveRecords()
{
    QByteArray content = journalHead(42);
    for (int number = 0; number < 5; ++number) {
        const std::string text = std::to_string(number);
        const JournalRecord record
            = RenameReported { "/old/" + text, "/new/" + text, number + 0.1 }; // its last byte is no zero
        content += encodeRecords({ &record, 1 });
    }
    return content;
}

void RenameJournalTest::survivesCuts_data()
{
    QTest::addColumn<int>("zeros");
    QTest::newRow("the file ends there") << 0;
    QTest::newRow("the rest was reserved") << 5000;
}

void RenameJournalTest::survivesCuts()
{
    QFETCH(int, zeros);
    const QByteArray content = fiveRecords();
    const qsizetype recordSize = (content.size() - journalHeadSize) / 5;
    // The head comes whole, by a rename, before there are zeros.
    for (qsizetype size = zeros > 0 ? journalHeadSize : 0; size <= content.size(); ++size) {
        const TestFolder state;
        state.create("renames.journal", (content.first(size) + QByteArray(zeros, '\0')).toStdString());
        RenameJournal journal(state.path());
        const auto session = journal.enter();
        QVERIFY(session);
        const qsizetype whole = std::max<qsizetype>(size - journalHeadSize, 0) / recordSize;
        QCOMPARE(static_cast<qsizetype>(journal.changes().size()), whole);
        // What a power cut leaves is no damage, and the next record must not be lost behind it.
        QVERIFY(journal.takeNotices().isEmpty());
        const JournalRecord next = RenameReported { "/x", "/y", 9 };
        QVERIFY(journal.append({ next }, RenameJournal::Durability::Unsynced));
        QCOMPARE(static_cast<qsizetype>(RenameJournal(state.path()).peek()->size()), whole + 1);
    }
}

void RenameJournalTest::survivesFlips()
{
    const QByteArray content = fiveRecords();
    const qsizetype recordSize = (content.size() - journalHeadSize) / 5;
    for (qsizetype at = 0; at < content.size(); ++at) {
        QByteArray damaged = content;
        damaged[at] = static_cast<char>(damaged[at] ^ 0x21);
        const TestFolder state;
        state.create("renames.journal", damaged.toStdString());
        RenameJournal journal(state.path());
        const auto session = journal.enter();
        QVERIFY(session);
        const bool isInEpoch = at >= 8 && at < journalHeadSize;
        const bool isInLast = at >= content.size() - recordSize;
        QCOMPARE(journal.changes().size(), at < journalHeadSize ? 5u : 4u);
        QCOMPARE(journal.takeNotices().size(), isInEpoch || isInLast ? 0 : 1);
        if (!isInEpoch && !isInLast)
            QCOMPARE(TestFolder::content(state / "renames.damaged-1.journal"), damaged.toStdString());
    }
}

void RenameJournalTest::setsAsideWhatIsNoFile_data()
{
    QTest::addColumn<QByteArray>("kind");
    for (const char *kind : { "folder", "FIFO", "huge", "text" })
        QTest::newRow(kind) << QByteArray(kind);
}

void RenameJournalTest::setsAsideWhatIsNoFile()
{
    QFETCH(QByteArray, kind);
    const TestFolder state;
    const path file = state / "renames.journal";
    if (kind == "folder")
        std::filesystem::create_directory(file);
    else if (kind == "FIFO")
        QCOMPARE(::mkfifo(file.c_str(), 0600), 0);
    else
        state.create("renames.journal", "not ours");
    if (kind == "huge")
        std::filesystem::resize_file(file, 2'000'000'000);
    RenameJournal journal(state.path());
    const auto session = journal.enter();
    QVERIFY(session);
    QCOMPARE(journal.takeNotices().size(), 1);
    QVERIFY(std::filesystem::exists(state / "renames.damaged-1.journal"));
    QVERIFY(std::filesystem::is_regular_file(file));
}

QTEST_GUILESS_MAIN(RenameJournalTest)
#include "tst_RenameJournal.moc"
