// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "renaming/FolderAccess.h"

#include "fakes/FakePreferenceStore.h"
#include "renaming/FolderBookmark.h"
#include "renaming/TestFolder.h"
#include <QCoroTask>
#include <QtTest>

using namespace Varlo;
using namespace Qt::StringLiterals;
using std::filesystem::path;

namespace {

struct FakePanel final : FolderAccessPanel {
    std::optional<path> answer;
    std::vector<path> asked;
    [[nodiscard]] QCoro::Task<std::optional<path>> ask(path folder) override
    {
        asked.push_back(folder);
        co_return answer;
    }
};

} // namespace

class FolderAccessTest : public QObject {
    Q_OBJECT
private slots:
    void init();
    void covers_data();
    void covers();
    void findsRenamedFolderAgain();
    void passesOverWhatCannotBeOpened();
    void asksOncePerAction();
    void keepsAnUnrelatedFolder();
    void keepsGrantsOfAnotherProcess();
    void tellsUndecodableNamesApart();
    void forgetsRemovedGrant();

private:
    std::optional<TestFolder> m_folder;
    std::unique_ptr<FakePreferenceStore> m_store;
    std::unique_ptr<Preferences> m_preferences;
    FakePanel m_panel;
    std::unique_ptr<FolderAccess> m_access;

    path makeFolder(const std::string &name)
    {
        std::filesystem::create_directories(*m_folder / name);
        return *m_folder / name;
    }
    void restart() { m_access = std::make_unique<FolderAccess>(*m_preferences, m_panel); }
    bool request(const path &folder) { return QCoro::waitFor(m_access->requestAccess(folder)); }
};

void FolderAccessTest::init()
{
    m_folder.emplace();
    m_store = std::make_unique<FakePreferenceStore>();
    m_preferences = std::make_unique<Preferences>(*m_store);
    m_panel = {};
    restart();
}

void FolderAccessTest::covers_data()
{
    QTest::addColumn<std::string>("asked");
    QTest::addColumn<bool>("isCovered");
    QTest::newRow("the folder itself") << std::string("Docs") << true;
    QTest::newRow("with a slash behind it") << std::string("Docs/") << true;
    QTest::newRow("two below") << std::string("Docs/x/y") << true;
    QTest::newRow("another that begins alike") << std::string("Docs2") << false;
    QTest::newRow("around a corner") << std::string("Docs/../Docs2") << false;
    QTest::newRow("the one above") << std::string("") << false;
}

void FolderAccessTest::covers()
{
    m_access->addGrant(makeFolder("Docs"));
    QFETCH(std::string, asked);
    QTEST(m_access->beginAccess(*m_folder / asked), "isCovered");
    restart();
    QTEST(m_access->beginAccess(*m_folder / asked), "isCovered");
}

void FolderAccessTest::findsRenamedFolderAgain()
{
    const path docs = makeFolder("Docs");
    m_access->addGrant(docs);
    const PreferenceDictionary before = m_access->grantedFolders();
    std::filesystem::rename(docs, *m_folder / "Papers");
    restart();
    QVERIFY(m_access->beginAccess(docs));
    const PreferenceDictionary after = m_access->grantedFolders();
    QCOMPARE(after.size(), 1u);
    QCOMPARE(after.begin()->first, before.begin()->first);
    QVERIFY(after.begin()->second != before.begin()->second);
    const auto bookmark = FolderBookmark::decode(after.begin()->second, docs);
    QVERIFY(bookmark && bookmark->path == *m_folder / "Papers" && bookmark->granted == docs);
}

void FolderAccessTest::passesOverWhatCannotBeOpened()
{
    const path outer = makeFolder("a");
    const path inner = makeFolder("a/b");
    m_access->addGrant(outer);
    m_access->addGrant(inner);
    // The first in the order of the keys is damaged, and the second leads nowhere.
    auto folders = m_access->grantedFolders();
    folders.begin()->second = "{]";
    m_store->values.insert_or_assign(u"folderBookmarks"_s, folders);
    restart();
    QVERIFY(m_access->beginAccess(inner));
    std::filesystem::remove(inner);
    restart();
    QVERIFY(!m_access->beginAccess(inner));
    QCOMPARE(m_access->grantedFolders().size(), 2u);
}

void FolderAccessTest::asksOncePerAction()
{
    const path docs = makeFolder("Docs");
    QVERIFY(!request(docs) && !request(docs));
    QCOMPARE(m_panel.asked, std::vector<path> { docs });
    m_access->forgetDeclined();
    m_panel.answer = docs;
    QVERIFY(request(docs));
    QVERIFY(request(docs / "below"));
    QCOMPARE(m_panel.asked.size(), 2u);
}

void FolderAccessTest::keepsAnUnrelatedFolder()
{
    m_panel.answer = makeFolder("Other");
    const path docs = makeFolder("Docs");
    QVERIFY(!request(docs));
    QVERIFY(m_access->beginAccess(*m_folder / "Other"));
    QVERIFY(!request(docs));
    QCOMPARE(m_panel.asked.size(), 2u); // choosing another one was not declining
}

void FolderAccessTest::keepsGrantsOfAnotherProcess()
{
    m_access->addGrant(makeFolder("Docs"));
    FolderAccess other(*m_preferences, m_panel);
    other.addGrant(makeFolder("Papers"));
    m_access->addGrant(makeFolder("Photos"));
    QCOMPARE(m_access->grantedFolders().size(), 3u);
}

void FolderAccessTest::tellsUndecodableNamesApart()
{
    m_access->addGrant(makeFolder("a\xFE"));
    m_access->addGrant(makeFolder("a\xFF"));
    QCOMPARE(m_access->grantedFolders().size(), 2u);
    restart();
    QVERIFY(m_access->beginAccess(*m_folder / "a\xFE"));
    QVERIFY(m_access->beginAccess(*m_folder / "a\xFF"));
    QVERIFY(!m_access->beginAccess(*m_folder / "a\xFD"));
}

void FolderAccessTest::forgetsRemovedGrant()
{
    const path docs = makeFolder("Docs");
    m_access->addGrant(docs);
    m_access->removeGrant(m_access->grantedFolders().begin()->first);
    QVERIFY(!m_access->beginAccess(docs));
    QVERIFY(m_access->grantedFolders().empty());
}

QTEST_GUILESS_MAIN(FolderAccessTest)
#include "tst_FolderAccess.moc"
