// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "updates/UpdaterModel.h"
#include <QSignalSpy>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTest>
#include <sodium.h>

using namespace Varlo;
using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

/// Answers every connection with the same bytes, which need not be HTTP, and then says no more.
struct FeedServer : QTcpServer {
    QByteArray answer;
    bool closes = true;
    int requestCount = 0;
    QByteArray request;

    FeedServer()
    {
        listen(QHostAddress::LocalHost);
        connect(this, &QTcpServer::newConnection, this, [this] {
            QTcpSocket *socket = nextPendingConnection();
            connect(socket, &QTcpSocket::readyRead, socket, [this, socket] {
                request += socket->readAll();
                if (!request.endsWith("\r\n\r\n"))
                    return;
                ++requestCount;
                socket->write(answer);
                if (closes)
                    socket->disconnectFromHost();
            });
        });
    }
    [[nodiscard]] QString address() const { return u"http://127.0.0.1:%1/feed"_s.arg(serverPort()); }
};

/// Those who publish releases.
struct Publisher {
    QByteArray publicKey = QByteArray(crypto_sign_PUBLICKEYBYTES, 0);
    QByteArray secretKey = QByteArray(crypto_sign_SECRETKEYBYTES, 0);

    Publisher()
    {
        ::crypto_sign_keypair(
            reinterpret_cast<unsigned char *>(publicKey.data()), reinterpret_cast<unsigned char *>(secretKey.data()));
    }
    [[nodiscard]] QByteArray sign(const QByteArray &content) const
    {
        QByteArray signature(crypto_sign_BYTES, 0);
        ::crypto_sign_detached(reinterpret_cast<unsigned char *>(signature.data()), nullptr,
            reinterpret_cast<const unsigned char *>(content.constData()),
            static_cast<unsigned long long>(content.size()),
            reinterpret_cast<const unsigned char *>(secretKey.constData()));
        return signature.toBase64() + '\n' + content;
    }
};

class UpdaterModelTest final : public QObject {
    Q_OBJECT
private slots:
    void initTestCase() { QVERIFY(::sodium_init() >= 0); }
    void takesWhatOpenSSLSigned();
    void tells_data();
    void tells();
    void waitsNoLongerThanItsLimit();
    void checksOnceAtATime();
    void canDoNothingWithoutAFeed();
    void asksOnlyWhereItMay_data();
    void asksOnlyWhereItMay();
    void goesWhileItWaits();

private:
    std::unique_ptr<UpdaterModel> model(std::chrono::milliseconds longestWait = 30s)
    {
        auto feed = UpdateFeed::parse(m_server->address(), m_publisher.publicKey.toBase64());
        return std::make_unique<UpdaterModel>(std::make_unique<UpdateChecker>(*feed, longestWait),
            QVersionNumber(1, 2, 0), [this](const QUrl &page) { m_opened.append(page); });
    }
    Publisher m_publisher;
    std::unique_ptr<FeedServer> m_server = std::make_unique<FeedServer>();
    QList<QUrl> m_opened;
};

static QByteArray http(const QByteArray &body, const QByteArray &head = "200 OK")
{
    return "HTTP/1.1 " + head + "\r\nContent-Length: " + QByteArray::number(body.size()) + "\r\n\r\n" + body;
}

static QByteArray release(const QByteArray &version, const QByteArray &page = "https://varlo.example/new")
{
    return R"({"version": ")" + version + R"(", "page": ")" + page + R"("})";
}

void UpdaterModelTest::takesWhatOpenSSLSigned()
{
    const QByteArray feed = "o+OKMhHncxZKslswM88Om1I0pNpz/8ELjQZ/6Ld74o4FA7tbTC/SJK8BTHP+m6gBjtIVpDeN2uToAVv3l4GiCw==\n"
                            "{\"version\": \"1.3.0\", \"page\": \"https://example.org/varlo/1.3\"}\n";
    const auto key = QByteArray::fromBase64("AT5YW9ccweg6LI3WJ53vXnnB0es2KsqD8TQxC3nmZxY=");
    const Result<Release, FeedError> release = readUpdateFeed(feed, key);
    QVERIFY(release);
    QCOMPARE(release->version, QVersionNumber(1, 3, 0));
    QCOMPARE(release->page, QUrl(u"https://example.org/varlo/1.3"_s));
}

void UpdaterModelTest::tells_data()
{
    QTest::addColumn<QByteArray>("answer");
    QTest::addColumn<QString>("told");
    const QString newer = u"Varlo 1.10.0 is available."_s;
    const QString current = u"Varlo is up to date."_s;
    const QString failed = u"Updates could not be checked."_s;
    const auto signedFeed = [this](const QByteArray &content) { return m_publisher.sign(content); };
    const QByteArray good = signedFeed(release("1.10.0"));
    QTest::newRow("newer, by number and not by letter") << http(good) << newer;
    QTest::newRow("with facts of later times")
        << http(signedFeed(R"({"more": [1], )" + release("1.10.0").mid(1))) << newer;
    QTest::newRow("the same") << http(signedFeed(release("1.2.0"))) << current;
    QTest::newRow("an older one played again") << http(signedFeed(release("1.1.9"))) << current;
    QTest::newRow("signed by another") << http(Publisher().sign(release("1.10.0"))) << failed;
    QTest::newRow("changed by a byte") << http(QByteArray(good).replace("1.10.0", "1.10.1")) << failed;
    QTest::newRow("a byte more behind it") << http(good + '\n') << failed;
    QTest::newRow("no signature") << http(release("1.10.0")) << failed;
    QTest::newRow("an empty line for one") << http('\n' + release("1.10.0")) << failed;
    QTest::newRow("cut short within") << http(good).chopped(9) << failed;
    QTest::newRow("cut short and said to be whole") << http(good.chopped(9)) << failed;
    QTest::newRow("nothing") << http({}) << failed;
    QTest::newRow("a page for people") << http("<!DOCTYPE html>\n<title>Log in to this network</title>") << failed;
    QTest::newRow("10 MB") << http(signedFeed(release("1.10.0") + QByteArray(10'000'000, ' '))) << failed;
    QTest::newRow("just too long") << http(signedFeed(release("1.10.0") + QByteArray(longestUpdateFeed, ' ')))
                                   << failed;
    QTest::newRow("signed, of another form") << http(signedFeed("[1]")) << failed;
    QTest::newRow("signed, no version") << http(signedFeed(release("newest"))) << failed;
    QTest::newRow("signed, words behind the version") << http(signedFeed(release("1.10.0 beta"))) << failed;
    QTest::newRow("signed, a page that is a program")
        << http(signedFeed(release("1.10.0", "file:///bin/sh"))) << failed;
    QTest::newRow("not found, with the feed in it") << http(good, "404 Not Found") << failed;
    QTest::newRow("redirected") << http(good, "302 Found\r\nLocation: /other") << failed;
    QTest::newRow("no HTTP at all") << QByteArray("SSH-2.0-OpenSSH_9.2\r\n") << failed;
}

void UpdaterModelTest::tells()
{
    QFETCH(QByteArray, answer);
    QFETCH(QString, told);
    m_server = std::make_unique<FeedServer>();
    m_server->answer = answer;
    m_opened.clear();
    const auto updater = model();
    updater->checkForUpdates();
    QTRY_VERIFY_WITH_TIMEOUT(!updater->isChecking(), 60'000);
    QCOMPARE(updater->title(), told);
    QVERIFY(!updater->detail().isEmpty());
    QVERIFY(m_server->requestCount > 0); // Qt asks again where the answer is no HTTP
    updater->openPage();
    QCOMPARE(m_opened.size(), updater->title().contains(u"available"_s) ? 1 : 0);
    QVERIFY(!updater->isShown());
    QVERIFY(updater->canCheckForUpdates());
}

void UpdaterModelTest::waitsNoLongerThanItsLimit()
{
    m_server = std::make_unique<FeedServer>();
    m_server->answer = http(m_publisher.sign(release("1.10.0"))).chopped(1);
    m_server->closes = false;
    const auto updater = model(200ms);
    updater->checkForUpdates();
    QTRY_VERIFY_WITH_TIMEOUT(!updater->isChecking(), 60'000);
    QCOMPARE(updater->detail(), u"No answer came in time."_s);
}

void UpdaterModelTest::checksOnceAtATime()
{
    m_server = std::make_unique<FeedServer>();
    m_server->answer = http(m_publisher.sign(release("1.2.0")));
    const auto updater = model();
    const QSignalSpy changed(updater.get(), &UpdaterModel::changed);
    updater->checkForUpdates();
    QVERIFY(updater->isShown() && !updater->canCheckForUpdates());
    updater->checkForUpdates();
    QTRY_VERIFY_WITH_TIMEOUT(updater->canCheckForUpdates(), 60'000);
    QCOMPARE(m_server->requestCount, 1);
    QCOMPARE(changed.size(), 2);
    const QByteArray request = m_server->request.toLower(); // the names of fields are written in either case
    QVERIFY(!request.contains("cookie") && request.contains("user-agent: varlo/"));
}

void UpdaterModelTest::canDoNothingWithoutAFeed()
{
    UpdaterModel updater({}, QVersionNumber(1, 2, 0), [](const QUrl &) {});
    updater.checkForUpdates();
    QVERIFY(!updater.canCheckForUpdates() && !updater.isShown());
}

void UpdaterModelTest::asksOnlyWhereItMay_data()
{
    QTest::addColumn<QString>("address");
    QTest::addColumn<QByteArray>("key");
    QTest::addColumn<bool>("mayAsk");
    const QByteArray key = QByteArray(32, 'k').toBase64();
    QTest::newRow("over TLS") << u"https://varlo.example/feed"_s << key << true;
    QTest::newRow("this computer") << u"http://127.0.0.1:80/feed"_s << key << true;
    QTest::newRow("in the clear") << u"http://varlo.example/feed"_s << key << false;
    QTest::newRow("a name like an address") << u"http://127.0.0.1.varlo.example/feed"_s << key << false;
    QTest::newRow("a file") << u"file:///etc/feed"_s << key << false;
    QTest::newRow("none") << u""_s << key << false;
    QTest::newRow("no key") << u"https://varlo.example/feed"_s << QByteArray() << false;
    QTest::newRow("half a key") << u"https://varlo.example/feed"_s << QByteArray(16, 'k').toBase64() << false;
}

void UpdaterModelTest::asksOnlyWhereItMay()
{
    QFETCH(QString, address);
    QFETCH(QByteArray, key);
    QTEST(UpdateFeed::parse(address, key).has_value(), "mayAsk");
}

void UpdaterModelTest::goesWhileItWaits()
{
    m_server = std::make_unique<FeedServer>();
    m_server->closes = false;
    auto updater = model();
    updater->checkForUpdates();
    QTRY_COMPARE_WITH_TIMEOUT(m_server->requestCount, 1, 60'000);
    updater.reset();
    QCoreApplication::processEvents();
}

QTEST_GUILESS_MAIN(UpdaterModelTest)
#include "tst_UpdaterModel.moc"
