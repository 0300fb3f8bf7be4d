// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "renaming/FileRenamer.h"

#include "fakes/FakeClock.h"
#include "renaming/planRenames.h"
#include "renaming/TestFolder.h"
#include <QtTest>
#include <sys/stat.h>
#include <unistd.h>

using namespace Varlo;
using namespace Qt::StringLiterals;
using Names = std::vector<std::string>;

class FileRenamerTest : public QObject {
    Q_OBJECT
private slots:
    void init();
    void findsFreeName_data();
    void findsFreeName();
    void givesUpBehindNinetyNine();
    void renamesLinkItself();
    void leavesAlone_data();
    void leavesAlone();
    void keepsEverythingButTheName();
    void renamesListInItsOrder();
    void plansWhatIsThenDone_data();
    void plansWhatIsThenDone();
    void plansAnewBehindAFailedMove();
    void stopsWhenTold();
    void movesNothingThatIsNotNotedDown();
    void renamesALongList();

private:
    std::optional<TestFolder> m_folder;
    std::optional<TestFolder> m_state;
    std::optional<RenameJournal> m_journal;
    std::optional<FileRenamer> m_renamer;
    FakeClock m_clock;

    FileRenamer::Outcome rename(const std::string &name, const QString &newName)
    {
        return m_renamer->renameDirectly({ *m_folder / name, newName, std::nullopt });
    }
};

void FileRenamerTest::init()
{
    m_folder.emplace();
    m_state.emplace();
    m_journal.emplace(*m_state / "varlo");
    m_renamer.emplace(*m_journal, m_clock);
}

void FileRenamerTest::findsFreeName_data()
{
    QTest::addColumn<Names>("others");
    QTest::addColumn<std::string>("name");
    QTest::addColumn<QString>("wanted");
    QTest::addColumn<std::string>("result");
    const auto row = [](const char *title, const Names &others, const std::string &name, const QString &wanted,
                         const std::string &result) { QTest::newRow(title) << others << name << wanted << result; };
    row("free", {}, "a.pdf", u"Invoice"_s, "Invoice.pdf");
    row("taken once", { "Invoice.pdf" }, "a.pdf", u"Invoice"_s, "Invoice 2.pdf");
    row("taken twice", { "Invoice.pdf", "Invoice 2.pdf" }, "a.pdf", u"Invoice"_s, "Invoice 3.pdf");
    row("number taken for part of the counting", { "Invoice 2.pdf" }, "a.pdf", u"Invoice 2"_s, "Invoice 2 2.pdf");
    row("taken with another extension only", { "Invoice.txt" }, "a.pdf", u"Invoice"_s, "Invoice.pdf");
    row("own name numbered", { "Invoice.pdf" }, "Invoice 2.pdf", u"Invoice"_s, "Invoice 2.pdf");
    row("other file differs in case", { "Scan.pdf" }, "scan.pdf", u"Scan"_s, "Scan 2.pdf");
    row("other file differs in accents", { "résumé.pdf" }, "resume.pdf", u"résumé"_s, "résumé 2.pdf");
    row("other file differs in composition", { "re\xCC\x81sume.pdf" }, "a.pdf", u"résume"_s, "résume.pdf");
    row("current name composed otherwise", {}, "re\xCC\x81sume.pdf", u"résume"_s, "re\xCC\x81sume.pdf");
    row("bytes that are no text", { "Invoice.p\xFF" }, "a\xFE.p\xFF", u"Invoice"_s, "Invoice 2.p\xFF");
    row("line break in the old name", {}, "a\nb.pdf", u"Invoice"_s, "Invoice.pdf");
    row("limit of 255 bytes, taken", { u"漢"_s.repeated(83).toStdString() + ".pdf" }, "a.pdf", u"漢"_s.repeated(120),
        u"漢"_s.repeated(83).toStdString() + " 2.pdf");
}

void FileRenamerTest::findsFreeName()
{
    QFETCH(Names, others);
    QFETCH(std::string, name);
    QFETCH(QString, wanted);
    QFETCH(std::string, result);
    for (const std::string &other : others)
        m_folder->create(other);
    m_folder->create(name);
    const auto outcome = rename(name, wanted);
    QVERIFY(outcome);
    QCOMPARE(outcome->filename().native(), result);
    QCOMPARE(TestFolder::content(*outcome), name);
    for (const std::string &other : others)
        QCOMPARE(TestFolder::content(*m_folder / other), other);
    QCOMPARE(m_folder->names().size(), others.size() + 1);
}

void FileRenamerTest::givesUpBehindNinetyNine()
{
    m_folder->create("a.pdf");
    m_folder->create("b.pdf");
    m_folder->create("Invoice.pdf");
    for (int number = 2; number <= 98; ++number)
        std::filesystem::create_symlink("nowhere", *m_folder / ("Invoice " + std::to_string(number) + ".pdf"));
    const auto last = rename("a.pdf", u"Invoice"_s);
    QVERIFY(last && last->filename() == "Invoice 99.pdf");
    const auto none = rename("b.pdf", u"Invoice"_s);
    QVERIFY(!none && none.error() == RenameFailure(RenameError::TooManyConflicts));
    QCOMPARE(TestFolder::content(*m_folder / "b.pdf"), "b.pdf");
}

void FileRenamerTest::renamesLinkItself()
{
    const TestFolder elsewhere;
    elsewhere.create("target.pdf");
    std::filesystem::create_symlink(elsewhere / "target.pdf", *m_folder / "link.pdf");
    std::filesystem::create_symlink("nowhere", *m_folder / "dangling.pdf");
    QVERIFY(rename("link.pdf", u"Invoice"_s));
    QVERIFY(rename("dangling.pdf", u"Invoice"_s));
    QCOMPARE(std::filesystem::read_symlink(*m_folder / "Invoice.pdf"), elsewhere / "target.pdf");
    QCOMPARE(std::filesystem::read_symlink(*m_folder / "Invoice 2.pdf"), "nowhere");
    QCOMPARE(elsewhere.names(), Names { "target.pdf" });
}

void FileRenamerTest::leavesAlone_data()
{
    QTest::addColumn<QByteArray>("what");
    QTest::addColumn<bool>("isChanged");
    for (const char *kind : { "another file", "folder", "FIFO" })
        QTest::newRow(kind) << QByteArray(kind) << true;
    QTest::newRow("nothing") << QByteArray("nothing") << false;
}

void FileRenamerTest::leavesAlone()
{
    QFETCH(QByteArray, what);
    struct stat status { };
    QCOMPARE(::lstat(m_folder->create("a.pdf").c_str(), &status), 0);
    // The old file stays elsewhere: its inode must not go to the new one.
    std::filesystem::rename(*m_folder / "a.pdf", *m_state / "old");
    if (what == "another file")
        m_folder->create("a.pdf");
    else if (what == "folder")
        std::filesystem::create_directory(*m_folder / "a.pdf");
    else if (what == "FIFO")
        QCOMPARE(::mkfifo((*m_folder / "a.pdf").c_str(), 0600), 0);
    const Names before = m_folder->names();
    const auto outcome
        = m_renamer->renameDirectly({ *m_folder / "a.pdf", u"b"_s, FileIdentity { status.st_dev, status.st_ino } });
    QFETCH(bool, isChanged);
    QVERIFY(!outcome);
    QCOMPARE(outcome.error() == RenameFailure(FileChanged {}), isChanged);
    QCOMPARE(outcome.error() == RenameFailure(SystemError { ENOENT }), !isChanged);
    QCOMPARE(m_folder->names(), before);
}

void FileRenamerTest::keepsEverythingButTheName()
{
    const auto path = m_folder->create("a.pdf");
    std::filesystem::create_hard_link(path, *m_folder / "Invoice.pdf");
    QCOMPARE(::chmod(path.c_str(), 0400), 0);
    struct stat before { };
    QCOMPARE(::lstat(path.c_str(), &before), 0);
    const auto outcome = rename("a.pdf", u"Invoice"_s);
    QVERIFY(outcome);
    // A second link to the file has a name of its own, and a plain rename onto it would do nothing and say it had.
    QCOMPARE(m_folder->names(), (Names { "Invoice 2.pdf", "Invoice.pdf" }));
    struct stat after { };
    QCOMPARE(::lstat(outcome->c_str(), &after), 0);
    QVERIFY(after.st_ino == before.st_ino && after.st_mode == before.st_mode && after.st_nlink == 2);
    QVERIFY(after.st_mtim.tv_sec == before.st_mtim.tv_sec && after.st_mtim.tv_nsec == before.st_mtim.tv_nsec);
}

void FileRenamerTest::renamesListInItsOrder()
{
    for (const char *name : { "a.pdf", "b.pdf", "c.pdf", "d.pdf", "Old.pdf" })
        m_folder->create(name);
    const std::vector<RenameRequest> requests {
        { *m_folder / "a.pdf", u"Same"_s, {} },
        { *m_folder / "b.pdf", u"Same"_s, {} },
        { *m_folder / "c.pdf", u"SAME"_s, {} },
        { *m_folder / "gone.pdf", u"Same"_s, {} },
        { *m_folder / "Old.pdf", u"New"_s, {} },
        { *m_folder / "d.pdf", u"Old"_s, {} }, // free only once the one before has moved
        { *m_folder / "d.pdf", u"Again"_s, {} },
    };
    Names results;
    const auto tried = m_renamer->renameAll(requests, [&](std::size_t index, const FileRenamer::Outcome &outcome) {
        results.push_back(outcome ? outcome->filename().native() : "-");
        // Each outcome comes before the next move.
        const bool isNextUnmoved = index + 1 >= requests.size() || index == 2 || index == 5
            || std::filesystem::exists(requests[index + 1].path);
        return isNextUnmoved ? FileRenamer::Next::GoOn : FileRenamer::Next::Stop;
    });
    QCOMPARE(tried, requests.size());
    QCOMPARE(results, (Names { "Same.pdf", "Same 2.pdf", "SAME.pdf", "-", "New.pdf", "Old.pdf", "-" }));
    QCOMPARE(TestFolder::content(*m_folder / "Old.pdf"), "d.pdf");
    QCOMPARE(TestFolder::content(*m_folder / "New.pdf"), "Old.pdf");
}

void FileRenamerTest::plansWhatIsThenDone_data()
{
    using Wishes = std::vector<std::pair<std::string, QString>>;
    QTest::addColumn<Wishes>("wishes");
    QTest::addColumn<Names>("results");
    const auto row = [](const char *title, const Wishes &wishes, const Names &results) {
        QTest::newRow(title) << wishes << results;
    };
    row("taken on disk", { { "a.txt", u"there"_s } }, { "there 2.txt" });
    row("taken by an earlier one", { { "a.txt", u"x"_s }, { "b.txt", u"x"_s } }, { "x.txt", "x 2.txt" });
    row("freed by an earlier one", { { "a.txt", u"x"_s }, { "b.txt", u"a"_s } }, { "x.txt", "a.txt" });
    row("freed, and taken again", { { "a.txt", u"x"_s }, { "b.txt", u"a"_s }, { "c.txt", u"a"_s } },
        { "x.txt", "a.txt", "a 2.txt" });
    row("freed too late", { { "a.txt", u"b"_s }, { "b.txt", u"x"_s } }, { "b 2.txt", "x.txt" });
    row("taken in two spellings", { { "a.txt", u"X"_s }, { "b.txt", u"x"_s }, { "c.txt", u"X"_s } },
        { "X.txt", "x.txt", "X 2.txt" });
    row("one that stays", { { "a.txt", u"a"_s }, { "b.txt", u"a"_s } }, { "a.txt", "a 2.txt" });
    row("one that is gone", { { "gone.txt", u"x"_s }, { "b.txt", u"x"_s } }, { "", "x.txt" });
    row("one that was replaced", { { "other.txt", u"x"_s }, { "b.txt", u"x"_s } }, { "", "x.txt" });
}

void FileRenamerTest::plansWhatIsThenDone()
{
    using Wishes = std::vector<std::pair<std::string, QString>>;
    QFETCH(Wishes, wishes);
    QFETCH(Names, results);
    for (const char *name : { "a.txt", "b.txt", "c.txt", "other.txt", "there.txt" })
        m_folder->create(name);
    std::vector<RenameRequest> requests;
    for (const auto &[name, wanted] : wishes)
        requests.push_back({ *m_folder / name, wanted, std::nullopt });
    for (RenameRequest &request : requests) {
        if (request.path.filename() == "other.txt")
            request.admitted = FileIdentity { 1, 1 };
    }
    const Names before = m_folder->names();
    const std::vector<FileRenamer::Outcome> planned = planRenames(requests);
    QCOMPARE(m_folder->names(), before);
    Names names;
    for (const FileRenamer::Outcome &outcome : planned)
        names.push_back(outcome ? outcome->filename().native() : "");
    QCOMPARE(names, results);
    int differences = 0;
    m_renamer->renameAll(requests, [&](std::size_t index, const FileRenamer::Outcome &outcome) {
        differences += outcome == planned[index] ? 0 : 1;
        return FileRenamer::Next::GoOn;
    });
    QCOMPARE(differences, 0);
}

void FileRenamerTest::plansAnewBehindAFailedMove()
{
    for (const char *name : { "a.pdf", "b.pdf", "c.pdf" })
        m_folder->create(name);
    const std::vector<RenameRequest> requests {
        { *m_folder / "a.pdf", u"First"_s, {} },
        { *m_folder / "b.pdf", u"Same"_s, {} },
        { *m_folder / "c.pdf", u"Other"_s, {} },
    };
    std::vector<FileRenamer::Outcome> outcomes;
    m_renamer->renameAll(requests, [&](std::size_t index, const FileRenamer::Outcome &outcome) {
        if (index == 0)
            m_folder->create("Same.pdf", "another program's");
        if (index == 1)
            std::filesystem::rename(*m_folder / "Same.pdf", *m_folder / "Other.pdf");
        outcomes.push_back(outcome);
        return FileRenamer::Next::GoOn;
    });
    QCOMPARE(outcomes.size(), 3u);
    QVERIFY(outcomes[0]);
    QVERIFY(!outcomes[1] && outcomes[1].error() == RenameFailure(SystemError { EEXIST }));
    QVERIFY(outcomes[2] && outcomes[2]->filename() == "Other 2.pdf");
    QCOMPARE(TestFolder::content(*m_folder / "Other.pdf"), "another program's");
    QCOMPARE(m_journal->peek()->size(), 2u);
}

void FileRenamerTest::stopsWhenTold()
{
    std::vector<RenameRequest> requests;
    for (int number = 0; number < 100; ++number)
        requests.push_back({ m_folder->create(std::to_string(number) + ".txt"), u"Name"_s, {} });
    const auto tried = m_renamer->renameAll(requests, [&](std::size_t index, const FileRenamer::Outcome &) {
        return index == 2 ? FileRenamer::Next::Stop : FileRenamer::Next::GoOn;
    });
    QCOMPARE(tried, 3u);
    QVERIFY(std::filesystem::exists(requests[3].path));
    // The rest was noted down and is not waiting to be found by the next start.
    RenameJournal next(*m_state / "varlo");
    QVERIFY(next.enter());
    QCOMPARE(next.peek()->size(), 3u);
    QVERIFY(next.takeNotices().isEmpty());
}

void FileRenamerTest::movesNothingThatIsNotNotedDown()
{
    m_state->create("varlo", "a file where the folder should be");
    m_folder->create("a.pdf");
    const auto outcome = rename("a.pdf", u"b"_s);
    QVERIFY(!outcome && std::holds_alternative<HistoryNotWritable>(outcome.error()));
    QVERIFY(!isPermissionDenied(outcome.error()));
    QCOMPARE(m_folder->names(), Names { "a.pdf" });
    QVERIFY(rename("a.pdf", u"a"_s)); // nothing to move, so nothing to note down
}

void FileRenamerTest::renamesALongList()
{
    std::vector<RenameRequest> requests;
    for (int number = 0; number < 1000; ++number)
        requests.push_back({ m_folder->create(std::to_string(number) + ".txt"), u"Name"_s, {} });
    int renamed = 0;
    m_renamer->renameAll(requests, [&](std::size_t index, const FileRenamer::Outcome &outcome) {
        const bool isRight = outcome ? TestFolder::content(*outcome) == std::to_string(index) + ".txt"
                                     : outcome.error() == RenameFailure(RenameError::TooManyConflicts);
        renamed += outcome && isRight ? 1 : 0;
        return isRight ? FileRenamer::Next::GoOn : FileRenamer::Next::Stop;
    });
    QCOMPARE(renamed, 99);
    QCOMPARE(m_folder->names().size(), 1000u);
    QCOMPARE(m_journal->peek()->size(), 99u);
}

QTEST_GUILESS_MAIN(FileRenamerTest)
#include "tst_FileRenamer.moc"
