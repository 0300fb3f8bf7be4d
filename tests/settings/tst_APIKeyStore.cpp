// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "fakes/FakeSecretStore.h"
#include "settings/APIKeyStore.h"

#include <QCoroSignal>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace Varlo;
using Failure = SecretStore::Failure;

class Gate : public QObject {
    Q_OBJECT
signals:
    void opened();
};

class APIKeyStoreTest : public QObject {
    Q_OBJECT
private slots:
    void trims_data();
    void trims();
    void savesNothing_data();
    void savesNothing();
    void keepsEndpointsApart();
    void knowsWhetherThereIsAKey();
    void prefersTheEnvironment();
    void outlivesItsOwner();
};

template <typename Value> static Value wait(QCoro::Task<Value> &&task) { return QCoro::waitFor(std::move(task)); }

void APIKeyStoreTest::trims_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("stored");
    QTest::newRow("spaces and tabs at both ends") << u" \t key\t "_s << u"key"_s;
    QTest::newRow("a line break at the end stays") << u"key\n"_s << u"key\n"_s;
    QTest::newRow("spaces before a line break stay") << u" key \r\n"_s << u"key \r\n"_s;
    QTest::newRow("spaces inside stay") << u"a key"_s << u"a key"_s;
    QTest::newRow("a no-break space copied from a web page") << u"key\u00a0"_s << u"key"_s;
}

void APIKeyStoreTest::trims()
{
    QFETCH(QString, typed);
    QFETCH(QString, stored);
    FakeSecretStore secrets;
    APIKeyStore keys(secrets, Endpoint::hosted());
    QVERIFY(wait(keys.saveKey(typed)));
    QVERIFY(keys.hasKey());
    QCOMPARE(secrets.secrets, (std::map<QString, QString> { { u"anthropic"_s, stored } }));
}

void APIKeyStoreTest::savesNothing_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<bool>("isLocked");
    QTest::newRow("only spaces must not replace the key") << u" \t "_s << false;
    QTest::newRow("a store that is locked") << u"new"_s << true;
}

void APIKeyStoreTest::savesNothing()
{
    QFETCH(QString, typed);
    QFETCH(bool, isLocked);
    FakeSecretStore secrets;
    APIKeyStore keys(secrets, Endpoint::hosted());
    QVERIFY(wait(keys.saveKey(u"old"_s)));
    QSignalSpy changes(&keys, &APIKeyStore::hasKeyChanged);
    if (isLocked)
        secrets.failure = Failure::Locked;
    QVERIFY(wait(keys.saveKey(typed)) == tl::make_unexpected(isLocked ? Failure::Locked : Failure::NotFound));
    QVERIFY(keys.hasKey());
    QCOMPARE(changes.size(), 0);
    QCOMPARE(secrets.secrets.at(u"anthropic"_s), u"old"_s);
}

void APIKeyStoreTest::keepsEndpointsApart()
{
    FakeSecretStore secrets;
    APIKeyStore hosted(secrets, Endpoint::hosted());
    APIKeyStore own(secrets, *Endpoint::parse(u"http://127.0.0.1:8080/base"_s));
    QVERIFY(wait(hosted.saveKey(u"hosted key"_s)));
    QVERIFY(wait(own.loadKey()) == tl::make_unexpected(Failure::NotFound));
    QVERIFY(wait(own.saveKey(u"own key"_s)));
    QVERIFY(wait(hosted.loadKey()) == u"hosted key"_s);
    QVERIFY(wait(own.deleteKey()));
    QVERIFY(wait(hosted.loadKey()));
}

void APIKeyStoreTest::knowsWhetherThereIsAKey()
{
    FakeSecretStore secrets;
    secrets.secrets = { { u"anthropic"_s, u"key"_s } };
    APIKeyStore keys(secrets, Endpoint::hosted());
    QVERIFY(!keys.hasKey());
    QVERIFY(wait(keys.loadKey()));
    QVERIFY(keys.hasKey());
    secrets.failure = Failure::Unavailable;
    QVERIFY(!wait(keys.deleteKey()));
    QVERIFY2(!keys.hasKey(), "a key that could not be removed counts as removed");
    secrets.failure.reset();
    secrets.secrets.at(u"anthropic"_s) = QString();
    QVERIFY(wait(keys.loadKey()) == tl::make_unexpected(Failure::NotFound));
    QVERIFY(!keys.hasKey());
}

void APIKeyStoreTest::prefersTheEnvironment()
{
    FakeSecretStore secrets;
    secrets.failure = Failure::Locked;
    APIKeyStore keys(secrets, Endpoint::hosted(), u"from the environment"_s);
    QVERIFY(wait(keys.loadKey()) == u"from the environment"_s);
    QVERIFY(!wait(keys.deleteKey()));
    QVERIFY2(keys.hasKey(), "the environment still has it");
}

void APIKeyStoreTest::outlivesItsOwner()
{
    struct SlowStore final : SecretStore {
        Gate gate;
        QCoro::Task<Result<QString, Failure>> load(QString) override
        {
            co_await qCoro(&gate, &Gate::opened);
            co_return u"key"_s;
        }
        QCoro::Task<Result<void, Failure>> save(QString, QString) override { co_return Result<void, Failure> {}; }
        QCoro::Task<Result<void, Failure>> remove(QString) override { co_return Result<void, Failure> {}; }
        [[nodiscard]] QString description() const override { return {}; }
    } slow;
    auto keys = std::make_unique<APIKeyStore>(slow, Endpoint::hosted());
    auto loading = keys->loadKey();
    keys.reset();
    emit slow.gate.opened();
    QVERIFY(wait(std::move(loading)) == u"key"_s);
}

QTEST_GUILESS_MAIN(APIKeyStoreTest)
#include "tst_APIKeyStore.moc"
