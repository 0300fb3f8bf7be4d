// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "fakes/FakeSecretStore.h"
#include "platform/linux/FallbackSecretStore.h"
#include "platform/linux/FileSecretStore.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <sys/stat.h>

using namespace Qt::StringLiterals;
using namespace Varlo;
using Failure = SecretStore::Failure;

template <typename Value> static Value wait(QCoro::Task<Value> &&task) { return QCoro::waitFor(std::move(task)); }

/// The file alone, and as what stands in for a keyring.
class FileSecretStoreTest : public QObject {
    Q_OBJECT
private slots:
    void init() { m_folder = std::make_unique<QTemporaryDir>(); }
    void isTheUsersAlone();
    void keepsAccountsApart();
    void meetsDamage_data();
    void meetsDamage();
    void standsInForAMissingKeyringOnly_data();
    void standsInForAMissingKeyringOnly();
    void leavesNoCopyBehindTheKeyring();
    void removesFromBoth();

private:
    [[nodiscard]] std::filesystem::path file() const
    {
        return m_folder->path().toStdString() + "/data/varlo/secrets/keys.json";
    }

    std::unique_ptr<QTemporaryDir> m_folder;
};

static mode_t modeOf(const std::filesystem::path &path)
{
    struct stat status { };
    return ::stat(path.c_str(), &status) == 0 ? status.st_mode & 07777 : 0;
}

void FileSecretStoreTest::isTheUsersAlone()
{
    FileSecretStore store(file());
    QVERIFY(wait(store.load(u"a"_s)) == tl::make_unexpected(Failure::NotFound));
    QVERIFY(QDir(m_folder->path()).isEmpty());
    QVERIFY(wait(store.save(u"a"_s, u"secret"_s)));
    ::chmod(file().c_str(), 0644);
    ::chmod(file().parent_path().c_str(), 0755);
    QVERIFY(wait(store.save(u"a"_s, u"secret"_s)));
    QCOMPARE(modeOf(file()), 0600u);
    QCOMPARE(modeOf(file().parent_path()), 0700u);
}

void FileSecretStoreTest::keepsAccountsApart()
{
    FileSecretStore store(file());
    QVERIFY(wait(store.save(u"anthropic"_s, u"one\n"_s)));
    QVERIFY(wait(store.save(u"http://[::1]:8080"_s, u"two \"\u00e9\""_s)));
    QVERIFY(wait(store.save(u"anthropic"_s, u"three"_s)));
    QVERIFY(wait(FileSecretStore(file()).load(u"http://[::1]:8080"_s)) == u"two \"\u00e9\""_s);
    QVERIFY(wait(store.remove(u"anthropic"_s)));
    QVERIFY(wait(store.remove(u"anthropic"_s)) == tl::make_unexpected(Failure::NotFound));
    QVERIFY(wait(store.load(u"http://[::1]:8080"_s)));
}

void FileSecretStoreTest::meetsDamage_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<Failure>("answer");
    QTest::newRow("cut off") << QByteArray("{\"a\":\"se") << Failure::Unavailable;
    QTest::newRow("another kind of value") << QByteArray("{\"a\":1}") << Failure::NotFound;
}

void FileSecretStoreTest::meetsDamage()
{
    QFETCH(QByteArray, content);
    std::filesystem::create_directories(file().parent_path());
    QFile damaged(file());
    QVERIFY(damaged.open(QIODevice::WriteOnly) && damaged.write(content) == content.size());
    damaged.close();
    FileSecretStore store(file());
    QFETCH(Failure, answer);
    QVERIFY(wait(store.load(u"a"_s)) == tl::make_unexpected(answer));
    QVERIFY(wait(store.save(u"b"_s, u"new"_s)));
    QVERIFY(wait(store.load(u"b"_s)) == u"new"_s);
    QFile kept(file().parent_path() / "keys.damaged-1.json");
    QCOMPARE(kept.open(QIODevice::ReadOnly) ? kept.readAll() : QByteArray(),
        answer == Failure::Unavailable ? content : QByteArray());
}

void FileSecretStoreTest::standsInForAMissingKeyringOnly_data()
{
    QTest::addColumn<std::optional<Failure>>("keyringAnswer");
    QTest::addColumn<bool>("inFile");
    QTest::newRow("no keyring") << std::optional(Failure::Unavailable) << true;
    QTest::newRow("a locked keyring must not make a file of the key") << std::optional(Failure::Locked) << false;
    QTest::newRow("a keyring") << std::optional<Failure>() << false;
}

void FileSecretStoreTest::standsInForAMissingKeyringOnly()
{
    QFETCH(std::optional<Failure>, keyringAnswer);
    QFETCH(bool, inFile);
    FakeSecretStore keyring;
    keyring.failure = keyringAnswer;
    FileSecretStore fileStore(file());
    FallbackSecretStore store(keyring, fileStore);
    const auto missing = wait(store.load(u"a"_s));
    QVERIFY(missing == tl::make_unexpected(keyringAnswer == Failure::Locked ? Failure::Locked : Failure::NotFound));
    QCOMPARE(wait(store.save(u"a"_s, u"secret"_s)).has_value(), keyringAnswer != Failure::Locked);
    QCOMPARE(std::filesystem::exists(file()), inFile);
    QCOMPARE(store.description(), inFile ? fileStore.description() : keyring.description());
    QCOMPARE(wait(store.load(u"a"_s)).has_value(), keyringAnswer != Failure::Locked);
}

void FileSecretStoreTest::leavesNoCopyBehindTheKeyring()
{
    FakeSecretStore keyring;
    FileSecretStore fileStore(file());
    FallbackSecretStore store(keyring, fileStore);
    QVERIFY(wait(store.save(u"a"_s, u"oldest"_s)));
    keyring.failure = Failure::Unavailable;
    QVERIFY(wait(store.save(u"a"_s, u"newer"_s)));
    keyring.failure.reset();
    QVERIFY2(wait(store.load(u"a"_s)) == u"newer"_s, "the key saved last, wherever that was");
    QVERIFY(wait(store.save(u"a"_s, u"newest"_s)));
    QVERIFY(wait(fileStore.load(u"a"_s)) == tl::make_unexpected(Failure::NotFound));
    QVERIFY(wait(store.load(u"a"_s)) == u"newest"_s);
}

void FileSecretStoreTest::removesFromBoth()
{
    FakeSecretStore keyring;
    FileSecretStore fileStore(file());
    FallbackSecretStore store(keyring, fileStore);
    keyring.secrets = { { u"a"_s, u"in the keyring"_s } };
    QVERIFY(wait(fileStore.save(u"a"_s, u"in the file"_s)));
    QVERIFY(wait(store.remove(u"a"_s)));
    QVERIFY(wait(store.load(u"a"_s)) == tl::make_unexpected(Failure::NotFound));
    QVERIFY(wait(store.remove(u"a"_s)) == tl::make_unexpected(Failure::NotFound));
    keyring.failure = Failure::Locked;
    QVERIFY(wait(fileStore.save(u"a"_s, u"in the file"_s)));
    QVERIFY(wait(store.remove(u"a"_s)) == tl::make_unexpected(Failure::Locked));
    QVERIFY(wait(fileStore.load(u"a"_s)) == tl::make_unexpected(Failure::NotFound));
}

QTEST_GUILESS_MAIN(FileSecretStoreTest)
#include "tst_FileSecretStore.moc"
