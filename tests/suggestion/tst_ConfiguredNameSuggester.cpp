// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "fakes/FakeMessagesServer.h"
#include "fakes/FakePreferenceStore.h"
#include "fakes/FakeSecretStore.h"
#include "suggestion/ProviderModel.h"
#include <QFile>
#include <QSignalSpy>
#include <QTest>

using namespace Varlo;
using namespace Qt::StringLiterals;

/// Two servers, and what a user sets.
struct Desk {
    FakeMessagesServer first, second;
    FakePreferenceStore store;
    Preferences preferences { store };
    FakeSecretStore secrets;
    std::unique_ptr<ConfiguredNameSuggester> suggester;
    std::unique_ptr<ProviderModel> provider;

    explicit Desk(const ModelEnvironment &environment = {})
    {
        if (!first.listen() || !second.listen())
            qFatal("loopback has no port left");
        set(first);
        suggester = std::make_unique<ConfiguredNameSuggester>(preferences, secrets, environment);
        provider = std::make_unique<ProviderModel>(preferences, *suggester);
    }
    void set(const FakeMessagesServer &server)
    {
        static_cast<void>(preferences.set(Preference::endpoint, server.address()));
    }
    [[nodiscard]] QString suggest() const
    {
        SuggestionRequest request;
        request.content = TextContent { u"Some text"_s };
        const auto answer = QCoro::waitFor(suggester->suggestName(std::move(request)));
        return answer ? u"named"_s : description(answer.error()).text();
    }
    /// As the sheet's button does it.
    [[nodiscard]] QString test(const QString &endpoint) const
    {
        provider->test(endpoint, {});
        for (QSignalSpy changes(provider.get(), &ProviderModel::testChanged); provider->isTesting();)
            changes.wait();
        return provider->outcome();
    }
};

class ConfiguredNameSuggesterTest : public QObject {
    Q_OBJECT
private slots:
    void followsThePreferences();
    void sendsEachKeyOnlyWhereItWasSavedFor();
    void keepsTheEnvironmentsKeyAtItsEndpoint();
    void asksNobodyAtAnAddressThatIsNone();
    void saysWhatCameOfATest_data();
    void saysWhatCameOfATest();
    void setsNothingButWhatCanBeUsed();
};

void ConfiguredNameSuggesterTest::followsThePreferences()
{
    Desk desk;
    desk.secrets.secrets = { { desk.first.address(), u"k1"_s }, { desk.second.address(), u"k2"_s } };
    QCOMPARE(desk.suggest(), u"named"_s);
    static_cast<void>(desk.preferences.set(Preference::model, u"other"_s));
    QCOMPARE(desk.suggest(), u"named"_s);
    QVERIFY(desk.first.requests().at(0).body.contains("\"claude-haiku-4-5\""));
    QVERIFY(desk.first.requests().at(1).body.contains("\"other\""));
    desk.set(desk.second);
    QCOMPARE(desk.suggest(), u"named"_s);
    QCOMPARE(desk.first.requests().size(), 2);
    QCOMPARE(desk.second.requests().size(), 1);
}

void ConfiguredNameSuggesterTest::sendsEachKeyOnlyWhereItWasSavedFor()
{
    Desk desk;
    desk.provider->saveKey(u" k1 "_s);
    QTRY_VERIFY_WITH_TIMEOUT(desk.provider->hasKey(), 60'000);
    QCOMPARE(desk.secrets.secrets, (std::map<QString, QString> { { desk.first.address(), u"k1"_s } }));
    QCOMPARE(desk.suggest(), u"named"_s);
    QCOMPARE(desk.first.requests().constLast().header("x-api-key"), "k1");

    QCOMPARE(desk.test(desk.second.address()), u"No API key set."_s);
    QVERIFY(desk.provider->hasKey()); // that was of the other one
    QVERIFY(desk.provider->setUp(desk.second.address(), {}));
    QTRY_VERIFY_WITH_TIMEOUT(!desk.provider->hasKey(), 60'000);
    QCOMPARE(desk.suggest(), u"No API key set."_s);
    QVERIFY(desk.second.requests().isEmpty());

    QVERIFY(desk.provider->setUp(desk.first.address(), {}));
    QTRY_VERIFY_WITH_TIMEOUT(desk.provider->hasKey(), 60'000);
    desk.provider->removeKey();
    QTRY_VERIFY_WITH_TIMEOUT(!desk.provider->hasKey(), 60'000);
    QVERIFY(desk.secrets.secrets.empty());
}

void ConfiguredNameSuggesterTest::keepsTheEnvironmentsKeyAtItsEndpoint()
{
    Desk desk({ {}, {}, u"from the environment"_s });
    QCOMPARE(desk.suggest(), u"named"_s);
    QCOMPARE(desk.first.requests().constLast().header("x-api-key"), "from the environment");
    QVERIFY(!desk.test(desk.second.address()).contains(u"answers"_s));
    desk.set(desk.second);
    QCOMPARE(desk.suggest(), u"No API key set."_s);
    QVERIFY(desk.second.requests().isEmpty());
}

void ConfiguredNameSuggesterTest::asksNobodyAtAnAddressThatIsNone()
{
    Desk desk;
    desk.secrets.secrets = { { u"anthropic"_s, u"k"_s } };
    static_cast<void>(desk.preferences.set(Preference::endpoint, u"http://example.org"_s));
    QCOMPARE(desk.suggest(), description(Endpoint::Error::PlainHttpBeyondLoopback));
}

void ConfiguredNameSuggesterTest::saysWhatCameOfATest_data()
{
    using Server = FakeMessagesServer;
    QTest::addColumn<QByteArray>("answer");
    QTest::addColumn<QString>("outcome");
    QTest::newRow("a name") << Server::text(u"2025-03-01 - Acme"_s).bytes
                            << u"The model answers. It suggested “2025-03-01 - Acme”."_s;
    QTest::newRow("the endpoint's own words")
        << Server::answer(401, R"({"error":{"message":"bad key"}})").bytes << u"bad key"_s;
    QTest::newRow("another kind of server") << Server::answer(404, "<html>").bytes << u"HTTP 404"_s;
    QTest::newRow("a model that cannot do it")
        << Server::text(u"x"_s.repeated(91)).bytes << u"Unexpected response from the model."_s;
}

void ConfiguredNameSuggesterTest::saysWhatCameOfATest()
{
    QFETCH(QByteArray, answer);
    QFETCH(QString, outcome);
    Desk desk;
    desk.secrets.secrets = { { desk.second.address(), u"k"_s } };
    desk.second.setScript([answer](const auto &) { return FakeMessagesServer::raw(answer); });
    QCOMPARE(desk.test(desk.second.address() + u"/ "_s), outcome);
    QCOMPARE(desk.provider->isOutcomeGood(), outcome.startsWith(u"The model answers"));
    QCOMPARE(desk.second.requests().size(), 1);
    QVERIFY2(desk.second.requests().constFirst().body.size() < 8000, "tiny");
    QCOMPARE(desk.provider->endpoint(), desk.first.address()); // nothing is set by a test
    desk.provider->forgetOutcome();
    QCOMPARE(desk.provider->outcome(), QString());
}

void ConfiguredNameSuggesterTest::setsNothingButWhatCanBeUsed()
{
    Desk desk({ {}, u"fixed"_s, {} });
    QVERIFY(!desk.provider->setUp(u"http://example.org"_s, u"m"_s));
    QCOMPARE(desk.provider->outcome(), description(Endpoint::Error::PlainHttpBeyondLoopback));
    QCOMPARE(desk.provider->endpoint(), desk.first.address());
    QVERIFY(desk.provider->setUp(u"  "_s, u"m"_s));
    QCOMPARE(desk.provider->outcome(), QString());
    QCOMPARE(desk.provider->endpoint(), QString());
    QCOMPARE(desk.provider->model(), u"fixed"_s);
    QVERIFY(!desk.store.values.contains(u"model"_s));
    desk.store.failure = SystemError { ENOSPC };
    QVERIFY(!desk.provider->setUp(desk.first.address(), {}));
    QVERIFY(!desk.provider->outcome().isEmpty());
}

QTEST_GUILESS_MAIN(ConfiguredNameSuggesterTest)
#include "tst_ConfiguredNameSuggester.moc"
