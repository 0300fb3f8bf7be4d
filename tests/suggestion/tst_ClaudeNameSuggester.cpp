// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "fakes/FakeMessagesServer.h"
#include "suggestion/buildPrompt.h"
#include "suggestion/ClaudeNameSuggester.h"
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QSslCertificate>
#include <QSslConfiguration>
#include <QSslKey>
#include <QSslServer>
#include <QTcpSocket>
#include <QTemporaryDir>
#include <QTest>

using namespace Varlo;
using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

using Server = FakeMessagesServer;
using LoadedKey = Result<QString, SecretStore::Failure>;
using Suggestion = Result<NameSuggestion, NameSuggestionError>;

static const QString testKey = u"sk-test-0123456789abcdef"_s;
static const QByteArray goodBody = R"({"content":[{"type":"text","text":"A name"}]})";
static const NameSuggestion goodSuggestion { u"A name"_s, {} };

static QCoro::Task<LoadedKey> keyTask(LoadedKey key) { co_return key; }

static KeyLoader loaderOf(const LoadedKey &key)
{
    return [key] { return keyTask(key); };
}

/// Long enough never to be met, short enough that a call without an end fails its test.
constexpr RequestLimits patience { .wholeCall = 20s };

static std::unique_ptr<ClaudeNameSuggester> suggesterFor(
    const QString &address, const LoadedKey &key = testKey, RequestLimits limits = patience)
{
    return std::make_unique<ClaudeNameSuggester>(
        Endpoint::parse(address).value(), QString(), loaderOf(key), nullptr, limits);
}

static SuggestionRequest textRequest(const QString &text = u"Some text"_s)
{
    return { .content = TextContent { text }, .existingName = u"scan"_s, .nameTemplate = {} };
}

static Suggestion suggest(ClaudeNameSuggester &suggester, const SuggestionRequest &request = textRequest())
{
    return QCoro::waitFor(suggester.suggestName(request));
}

/// What a failure says; a failure that tells the key says "LEAK".
static QString failureText(const Suggestion &suggestion)
{
    if (suggestion)
        return u"succeeded with "_s + suggestion->name;
    const QString text = description(suggestion.error());
    return text.contains(testKey) ? u"LEAK"_s : text;
}

class ClaudeNameSuggesterTest : public QObject {
    Q_OBJECT
private slots:
    void sendsText();
    void sendsImage();
    void takesReply_data();
    void takesReply();
    void failsWithTransportError_data();
    void failsWithTransportError();
    void failsWith_data();
    void failsWith();
    void endsAtTheTimeLimit_data();
    void endsAtTheTimeLimit();
    void stopsReadingAtTheSizeLimit_data();
    void stopsReadingAtTheSizeLimit();
    void followsNoRedirect_data();
    void followsNoRedirect();
    void sendsOnce_data();
    void sendsOnce();
    void checksKey_data();
    void checksKey();
    void asksForTheKeyEachTime();
    void keepsNoCookiesAndNoCredentials();
    void sharesConnections();
    void failsAlone_data();
    void failsAlone();
    void endsWhenDestroyed();
    void usesProxies_data();
    void usesProxies();
    void checksCertificate_data();
    void checksCertificate();
};

void ClaudeNameSuggesterTest::sendsText()
{
    Server server;
    QVERIFY(server.listen());
    const SuggestionRequest request { .content = TextContent { u"Fact \"ü\" \u2028 👍🏽"_s },
        .existingName = u"scan"_s,
        .language = FilenameLanguage::Dutch,
        .nameTemplate = builtInTemplates().first(),
        .includeTags = true };
    const auto suggestion = suggest(*suggesterFor(server.address() + "/prefix/"_L1), request);
    QVERIFY2(suggestion, qPrintable(failureText(suggestion)));
    QCOMPARE(suggestion->tags, (QStringList { u"example"_s, u"fact"_s }));

    QCOMPARE(server.requests().size(), 1);
    const Server::Request &sent = server.requests().first();
    QCOMPARE(sent.method, "POST");
    QCOMPARE(sent.target, "/prefix/v1/messages");
    QCOMPARE(sent.header("x-api-key"), testKey.toUtf8());
    QCOMPARE(sent.header("anthropic-version"), "2023-06-01");
    QCOMPARE(sent.header("content-type"), "application/json");
    QCOMPARE(sent.header("accept-encoding"), "identity");
    QVERIFY(!sent.headers.contains("authorization"));
    const QString prompt = buildPrompt(
        u"scan"_s, FilenameLanguage::Dutch, u"Fact \"ü\" \u2028 👍🏽"_s, builtInTemplates().first(), {}, true);
    const QJsonObject block { { u"type"_s, u"text"_s }, { u"text"_s, prompt } };
    const QJsonObject message { { u"role"_s, u"user"_s }, { u"content"_s, QJsonArray { block } } };
    const QJsonObject body { { u"model"_s, u"claude-haiku-4-5"_s }, { u"max_tokens"_s, 80 }, { u"temperature"_s, 0 },
        { u"messages"_s, QJsonArray { message } } };
    QCOMPARE(sent.body, QJsonDocument(body).toJson(QJsonDocument::Compact));
}

void ClaudeNameSuggesterTest::sendsImage()
{
    Server server;
    QVERIFY(server.listen());
    QByteArray picture(300'000, '\xff'); // its base64 holds "/", and would be broken into lines by a mailer's encoder
    picture += "end"; // no multiple of three
    const SuggestionRequest request { .content = ImageContent { picture, u"image/jpeg"_s, u"Camera: X"_s },
        .existingName = u"IMG_1"_s,
        .nameTemplate = {} };
    const auto suggestion = suggest(*suggesterFor(server.address()), request);
    QVERIFY2(suggestion, qPrintable(failureText(suggestion)));

    const QJsonObject body = QJsonDocument::fromJson(server.requests().first().body).object();
    const QJsonObject source { { u"type"_s, u"base64"_s }, { u"media_type"_s, u"image/jpeg"_s },
        { u"data"_s, QString::fromLatin1(picture.toBase64()) } };
    const QString prompt = buildPrompt(u"IMG_1"_s, FilenameLanguage::Auto, {}, {}, u"Camera: X"_s, false);
    const QJsonArray content { QJsonObject { { u"type"_s, u"image"_s }, { u"source"_s, source } },
        QJsonObject { { u"type"_s, u"text"_s }, { u"text"_s, prompt } } };
    QCOMPARE(body["messages"_L1][0]["content"_L1].toArray(), content);
}

static QByteArray contentBody(const QByteArray &blocks) { return R"({"content":)" + blocks + "}"; }

void ClaudeNameSuggesterTest::takesReply_data()
{
    QTest::addColumn<QByteArray>("reply");
    QTest::addColumn<QString>("name");
    const auto body = [](const QByteArray &bytes) { return Server::answer(200, bytes).bytes; };
    const auto row = [](const char *slip, const QByteArray &reply, const QString &name = u"A name"_s) {
        QTest::newRow(slip) << reply << name;
    };
    const QByteArray nameBlock = R"({"type":"text","text":"A name"})";
    row("first block taken", body(contentBody(R"([{"type":"tool_use","id":"x"},)" + nameBlock + "]")));
    row("last block taken", body(contentBody("[" + nameBlock + R"(,{"type":"text","text":"Another"}])")));
    row("type's case ignored", body(contentBody(R"([{"type":"Text","text":"Another"},)" + nameBlock + "]")));
    row("unknown members refused", body(R"({"id":1,"content":[{"type":"text","text":"A name","citations":[]}]})"));
    row("first of two keys", body(R"({"content":0,"content":[)" + nameBlock + "]}"));
    row("byte order mark", body("\xef\xbb\xbf" + goodBody));
    row("lone surrogate", body(contentBody(R"([{"type":"text","text":"A\ud83d name"}])")), u"A\xd83d name"_s);
    row("path left as it is", body(contentBody(R"([{"type":"text","text":"..\/..\/.ssh\/keys\u0000"}])")),
        u".....sshkeys"_s);
    row("interim answer taken for the answer", "HTTP/1.1 100 Continue\r\n\r\n" + body(goodBody));
    row("chunks left in",
        "HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n7\r\n" + goodBody.first(7) + "\r\n"
            + QByteArray::number(goodBody.size() - 7, 16) + "\r\n" + goodBody.sliced(7) + "\r\n0\r\n\r\n");
    row("almost too long", body(goodBody + QByteArray((1 << 20) - goodBody.size(), ' ')));
}

void ClaudeNameSuggesterTest::takesReply()
{
    QFETCH(QByteArray, reply);
    Server server([&](const Server::Request &) { return Server::raw(reply); });
    QVERIFY(server.listen());
    const auto suggestion = suggest(*suggesterFor(server.address()));
    QVERIFY2(suggestion, qPrintable(failureText(suggestion)));
    QTEST(suggestion->name, "name");
}

void ClaudeNameSuggesterTest::failsWithTransportError_data()
{
    QTest::addColumn<Server::Reply>("reply");
    const auto undecodable
        = [](const char *slip, const QByteArray &body) { QTest::newRow(slip) << Server::answer(200, body); };
    undecodable("no body", "");
    undecodable("no JSON", "<html>OK</html>");
    undecodable("JSON cut short", goodBody.chopped(1));
    undecodable("JSON with more behind", goodBody + "x");
    undecodable("a list", "[1]");
    undecodable("no content", R"({"text":"A name"})");
    undecodable("content null", contentBody("null"));
    undecodable("content an object", contentBody(R"({"type":"text","text":"A name"})"));
    undecodable("block a string", contentBody(R"(["A name"])"));
    undecodable("block without type", contentBody(R"([{"text":"A name"}])"));
    undecodable("text a number", contentBody(R"([{"type":"text","text":1}])"));
    undecodable(
        "text a list, behind a good block", contentBody(R"([{"type":"text","text":"A name"},{"type":"x","text":[]}])"));
    undecodable("300,000 blocks", contentBody("[" + QByteArray("{},").repeated(300'000) + "{}]"));
    undecodable("nested too deep", contentBody(QByteArray(100'000, '[') + QByteArray(100'000, ']')));
    undecodable("no UTF-8", contentBody("[{\"type\":\"text\",\"text\":\"A \xff\xc0\x80\"}]"));

    // Small enough to be taken if it were inflated; qCompress() puts the length before zlib's bytes.
    const QByteArray bomb = qCompress(goodBody + QByteArray(1'000'000, ' '), 9).sliced(4);
    QTest::newRow("inflated") << Server::answer(200, bomb, "Content-Encoding: deflate\r\n");

    const QByteArray head = "HTTP/1.1 200 OK\r\n";
    QTest::newRow("closed at once") << Server::raw("", true);
    QTest::newRow("closed in the head") << Server::raw("HTTP/1.1 200 OK\r\nContent-Le", true);
    QTest::newRow("closed in the body") << Server::raw(head + "Content-Length: 4711\r\n\r\n" + goodBody, true);
    QTest::newRow("closed in a chunk") << Server::raw(
        head + "Transfer-Encoding: chunked\r\n\r\nfff\r\n" + goodBody, true);
    QTest::newRow("closed before the last chunk") << Server::raw(head + "Transfer-Encoding: chunked\r\n\r\n"
            + QByteArray::number(goodBody.size(), 16) + "\r\n" + goodBody + "\r\n",
        true);
    QTest::newRow("chunk length no number")
        << Server::raw(head + "Transfer-Encoding: chunked\r\n\r\nxyz\r\n" + goodBody + "\r\n0\r\n\r\n", true);
    QTest::newRow("another protocol") << Server::raw("SSH-2.0-OpenSSH_9.2\r\n", true);
}

void ClaudeNameSuggesterTest::failsWithTransportError()
{
    QFETCH(Server::Reply, reply);
    Server server([&](const Server::Request &) { return reply; });
    QVERIFY(server.listen());
    const auto suggester = suggesterFor(server.address());
    const auto suggestion = suggest(*suggester);
    const QString text = failureText(suggestion);
    QVERIFY2(!suggestion && std::holds_alternative<TransportError>(suggestion.error()), qPrintable(text));
    QVERIFY2(!text.isEmpty() && text != "LEAK"_L1 && !text.contains("Unknown"_L1), qPrintable(text));
    QCOMPARE(server.requests().size(), 1);
    // What the bad answer left behind must not harm the next file.
    server.setReplies({ Server::answer(200, goodBody) });
    QCOMPARE(suggest(*suggester), goodSuggestion);
}

void ClaudeNameSuggesterTest::failsWith_data()
{
    QTest::addColumn<Server::Reply>("reply");
    QTest::addColumn<NameSuggestionError>("error");
    const auto row = [](const char *slip, const Server::Reply &reply, const NameSuggestionError &error) {
        QTest::newRow(slip) << reply << error;
    };
    const auto message = [](const QByteArray &text) { return R"({"error":{"message":")" + text + R"("}})"; };
    row("message lost", Server::answer(401, message("invalid x-api-key")), ApiError { u"invalid x-api-key"_s, true });
    row("key of a stranger taken for a fault of the server", Server::answer(403, "no"),
        ApiError { u"HTTP 403"_s, true });
    row("message changed", Server::answer(400, message(R"(<b>\u001b[2J %1 ü)")), ApiError { u"<b>\x1b[2J %1 ü"_s });
    row("message cut", Server::answer(529, message(QByteArray(1'000'000, 'm'))),
        ApiError { u"m"_s.repeated(1'000'000) });
    row("key repeated", Server::answer(401, message("no key '" + testKey.toUtf8() + "'")),
        ApiError { u"no key '•••'"_s, true });
    row("page for a browser", Server::answer(500, "<html>oops</html>"), ApiError { u"HTTP 500"_s });
    row("message no text", Server::answer(529, R"({"error":{"message":{}}})"), ApiError { u"HTTP 529"_s });
    row("error no object", Server::answer(404, R"({"error":"gone"})"), ApiError { u"HTTP 404"_s });
    row("success near enough: 201", Server::answer(201, goodBody), ApiError { u"HTTP 201"_s });
    row("success near enough: 206", Server::answer(206, goodBody), ApiError { u"HTTP 206"_s });
    row("status without a body", Server::raw("HTTP/1.1 204 No Content\r\n\r\n"), ApiError { u"HTTP 204"_s });
    row("not modified", Server::raw("HTTP/1.1 304 Not Modified\r\n\r\n"), ApiError { u"HTTP 304"_s });
    row("no blocks", Server::answer(200, contentBody("[]")), InvalidResponse {});
    row("no text block", Server::answer(200, contentBody(R"([{"type":"tool_use"}])")), InvalidResponse {});
    row("second text block taken",
        Server::answer(200, contentBody(R"([{"type":"text","text":null},{"type":"text","text":"A name"}])")),
        InvalidResponse {});
    row("name of nothing", Server::text(u"\"//\""_s), InvalidResponse {});
    row("no content", Server::text(u"NO_CONTENT"_s), NoReadableContent {});
}

void ClaudeNameSuggesterTest::failsWith()
{
    QFETCH(Server::Reply, reply);
    QFETCH(NameSuggestionError, error);
    Server server([&](const Server::Request &) { return reply; });
    QVERIFY(server.listen());
    const auto suggestion = suggest(*suggesterFor(server.address()));
    QVERIFY2(suggestion == tl::make_unexpected(error), qPrintable(failureText(suggestion).left(500)));
    QCOMPARE(server.requests().size(), 1);
}

void ClaudeNameSuggesterTest::endsAtTheTimeLimit_data()
{
    QTest::addColumn<Server::Reply>("reply");
    QTest::newRow("silence") << Server::silence();
    QTest::newRow("half a head") << Server::raw("HTTP/1.1 200 OK\r\nContent-");
    QTest::newRow("half a body") << Server::raw("HTTP/1.1 200 OK\r\nContent-Length: 4711\r\n\r\n" + goodBody);
    QTest::newRow("interim answer alone") << Server::raw("HTTP/1.1 100 Continue\r\n\r\n");
    // Each byte would start a limit on idleness again; there are enough of them for many seconds.
    const QByteArray head = "HTTP/1.1 200 OK\r\nContent-Length: 4711\r\n";
    QTest::newRow("head byte by byte") << Server::Reply { .bytes = head.repeated(100), .byteInterval = 20ms };
    QTest::newRow("body byte by byte") << Server::Reply { .bytes = head + "\r\n" + goodBody.repeated(100),
        .byteInterval = 20ms };
}

void ClaudeNameSuggesterTest::endsAtTheTimeLimit()
{
    QFETCH(Server::Reply, reply);
    Server server([&](const Server::Request &) { return reply; });
    QVERIFY(server.listen());
    const auto suggester = suggesterFor(server.address(), testKey, { .wholeCall = 300ms });
    QCOMPARE(failureText(suggest(*suggester)), u"The model did not answer within 1 seconds."_s);
    QVERIFY(server.requests().size() <= 1); // a busy machine may not get to the server in that time
}

void ClaudeNameSuggesterTest::stopsReadingAtTheSizeLimit_data()
{
    QTest::addColumn<QByteArray>("head");
    QTest::addColumn<QString>("text");
    const QString tooLong = u"The model's reply is too long to be one."_s;
    QTest::newRow("length told") << QByteArray("HTTP/1.1 200 OK\r\nContent-Length: 314572800\r\n\r\n") << tooLong;
    QTest::newRow("length untold") << QByteArray("HTTP/1.1 200 OK\r\nConnection: close\r\n\r\n") << tooLong;
    QTest::newRow("refusal") << QByteArray("HTTP/1.1 500 No\r\nContent-Length: 314572800\r\n\r\n") << u"HTTP 500"_s;
}

void ClaudeNameSuggesterTest::stopsReadingAtTheSizeLimit()
{
    QFETCH(QByteArray, head);
    const Server::Reply reply {
        .bytes = head, .filler = QByteArray(1 << 16, ' '), .fillerCount = 4800, .closes = true
    };
    Server server([&](const Server::Request &) { return reply; });
    QVERIFY(server.listen());
    const auto suggester = suggesterFor(server.address());
    QTEST(failureText(suggest(*suggester)), "text");
    // What was never sent cannot be held. Beyond the limit there are only the kernel's buffers, 10 MiB at most.
    QVERIFY2(server.fillerBytesSent() < 16 << 20, QByteArray::number(server.fillerBytesSent()).constData());
    server.setReplies({ Server::answer(200, goodBody) });
    QCOMPARE(suggest(*suggester), goodSuggestion);
}

void ClaudeNameSuggesterTest::followsNoRedirect_data()
{
    QTest::addColumn<int>("status");
    for (const int status : { 300, 301, 302, 303, 305, 307, 308 })
        QTest::addRow("%d", status) << status;
}

void ClaudeNameSuggesterTest::followsNoRedirect()
{
    QFETCH(int, status);
    Server target;
    QVERIFY(target.listen());
    Server server([&](const Server::Request &) {
        return Server::answer(status, "", "Location: " + target.address().toUtf8() + "/v1/messages\r\n");
    });
    QVERIFY(server.listen());
    QCOMPARE(failureText(suggest(*suggesterFor(server.address()))), u"HTTP %1"_s.arg(status));
    QCOMPARE(server.requests().size(), 1);
    QCOMPARE(target.connectionCount(), 0);
}

void ClaudeNameSuggesterTest::sendsOnce_data()
{
    QTest::addColumn<QList<Server::Reply>>("replies");
    const auto good = Server::answer(200, goodBody);
    QTest::newRow("again on a new connection") << QList { Server::raw("", true), good };
    QTest::newRow("again after half a head") << QList { Server::raw("HTTP/1.1 2", true), good };
    QTest::newRow("again with credentials")
        << QList { Server::answer(401, "", "WWW-Authenticate: Negotiate\r\nWWW-Authenticate: NTLM\r\n"), good };
    QTest::newRow("again for a proxy") << QList { Server::answer(407, "", "Proxy-Authenticate: Negotiate\r\n"), good };
    QTest::newRow("again after a time-out of the server's")
        << QList { Server::answer(408, "", "Connection: close\r\n"), good };
    QTest::newRow("again when too busy") << QList { Server::answer(503, "", "Retry-After: 0\r\n"), good };
}

void ClaudeNameSuggesterTest::sendsOnce()
{
    QFETCH(QList<Server::Reply>, replies);
    Server server;
    QVERIFY(server.listen());
    const auto suggester = suggesterFor(server.address());
    // The first call of a connection, and one on a connection that has served before, which Qt trusts more.
    for (const bool isWarm : { false, true }) {
        const auto before = server.requests().size();
        server.setReplies(replies);
        QVERIFY(!suggest(*suggester));
        QCOMPARE(server.requests().size(), before + 1);
        QCOMPARE(suggest(*suggester), goodSuggestion);
        QVERIFY(isWarm || server.requests().size() == 2);
    }
}

void ClaudeNameSuggesterTest::checksKey_data()
{
    QTest::addColumn<LoadedKey>("key");
    QTest::addColumn<QByteArray>("header");
    QTest::addColumn<QString>("text");
    const auto sent = [](const char *slip, const QString &key, const QByteArray &header) {
        QTest::newRow(slip) << LoadedKey(key) << header << QString();
    };
    const auto refused = [](const char *slip, const LoadedKey &key, const QString &text) {
        QTest::newRow(slip) << key << QByteArray() << text;
    };
    sent("line break behind it", u"key\r\n\n"_s, "key");
    sent("line break before it", u"\nkey"_s, "key");
    sent("not ASCII", u"clé"_s, "clé");
    const QString cannotBeSent = u"The API key holds characters that cannot be sent. Save it again."_s;
    refused("another header", testKey + u"\r\nX-Evil: 1"_s, cannotBeSent);
    refused("lone line feed", testKey + u"\nX-Evil: 1"_s, cannotBeSent);
    refused("NUL", testKey + u'\0' + u'x', cannotBeSent);
    refused("C1 control", testKey + u"\u0085x"_s, cannotBeSent);
    const QString missing = u"No API key set."_s;
    refused("empty", QString(), missing);
    refused("line break alone", u"\r\n"_s, missing);
    refused("none", tl::make_unexpected(SecretStore::Failure::NotFound), missing);
    refused("no store", tl::make_unexpected(SecretStore::Failure::Unavailable), missing);
    refused("locked taken for none", tl::make_unexpected(SecretStore::Failure::Locked),
        u"The keyring that holds your API key is locked. Unlock it and try again."_s);
}

void ClaudeNameSuggesterTest::checksKey()
{
    QFETCH(LoadedKey, key);
    QFETCH(QByteArray, header);
    QFETCH(QString, text);
    Server server;
    QVERIFY(server.listen());
    const auto suggestion = suggest(*suggesterFor(server.address(), key));
    if (header.isEmpty()) {
        QCOMPARE(failureText(suggestion), text);
        QCOMPARE(server.connectionCount(), 0);
        return;
    }
    QVERIFY2(suggestion, qPrintable(failureText(suggestion)));
    QCOMPARE(server.requests().first().header("x-api-key"), header);
    QVERIFY(!server.requests().first().headers.contains("x-evil"));
}

void ClaudeNameSuggesterTest::asksForTheKeyEachTime()
{
    Server server;
    QVERIFY(server.listen());
    LoadedKey key = u"first key"_s;
    ClaudeNameSuggester suggester(
        Endpoint::parse(server.address()).value(), u"another-model"_s, [&key] { return keyTask(key); }, nullptr,
        patience);
    QVERIFY(suggest(suggester));
    key = u"second key"_s;
    QVERIFY(suggest(suggester));
    key = tl::make_unexpected(SecretStore::Failure::NotFound);
    QVERIFY(suggest(suggester) == tl::make_unexpected(NameSuggestionError(MissingAPIKey {})));
    QCOMPARE(server.requests().size(), 2);
    QCOMPARE(server.requests().at(0).header("x-api-key"), "first key");
    QCOMPARE(server.requests().at(1).header("x-api-key"), "second key");
    QVERIFY(server.requests().at(1).body.contains(R"("model":"another-model")"));
}

void ClaudeNameSuggesterTest::keepsNoCookiesAndNoCredentials()
{
    Server server;
    QVERIFY(server.listen());
    server.setReplies({ Server::answer(401, R"({"error":{"message":"who?"}})",
                            "Set-Cookie: a=b; Path=/\r\nWWW-Authenticate: Basic realm=\"x\"\r\n"),
        Server::answer(200, goodBody) });
    const auto suggester = suggesterFor(server.address());
    QCOMPARE(failureText(suggest(*suggester)), u"who?"_s);
    QCOMPARE(suggest(*suggester), goodSuggestion);
    QCOMPARE(server.requests().size(), 2);
    QVERIFY(!server.requests().at(1).headers.contains("cookie"));
    QVERIFY(!server.requests().at(1).headers.contains("authorization"));
}

static QCoro::Task<int> suggestOneAfterAnother(ClaudeNameSuggester &suggester, int count)
{
    int named = 0;
    for (int call = 0; call < count; ++call) {
        SuggestionRequest request = textRequest(u"Text %1"_s.arg(call));
        const Suggestion suggestion = co_await suggester.suggestName(std::move(request));
        named += suggestion ? 1 : 0;
    }
    co_return named;
}

void ClaudeNameSuggesterTest::sharesConnections()
{
    Server server;
    QVERIFY(server.listen());
    const auto suggester = suggesterFor(server.address());
    std::vector<QCoro::Task<int>> callers;
    for (int caller = 0; caller < 5; ++caller)
        callers.push_back(suggestOneAfterAnother(*suggester, 200));
    int named = 0;
    for (QCoro::Task<int> &caller : callers)
        named += QCoro::waitFor(caller);
    QCOMPARE(named, 1000);
    QCOMPARE(server.requests().size(), 1000);
    QVERIFY2(server.connectionCount() <= 5, QByteArray::number(server.connectionCount()).constData());
}

void ClaudeNameSuggesterTest::failsAlone_data()
{
    QTest::addColumn<Server::Reply>("failure");
    QTest::newRow("refused") << Server::answer(529, "{}");
    QTest::newRow("connection closed") << Server::raw("HTTP/1.1 200 OK\r\nContent-", true);
    QTest::newRow("too long") << Server::Reply { .bytes = "HTTP/1.1 200 OK\r\nContent-Length: 314572800\r\n\r\n",
        .filler = QByteArray(1 << 16, ' '),
        .fillerCount = 4800,
        .closes = true };
}

void ClaudeNameSuggesterTest::failsAlone()
{
    QFETCH(Server::Reply, failure);
    Server server;
    QVERIFY(server.listen());
    Server::Reply late = Server::text(u"Name"_s);
    late.delay = 500ms;
    server.setReplies({ late, failure, Server::text(u"Name"_s) });
    const auto suggester = suggesterFor(server.address(), testKey, { .wholeCall = 20s });
    QCoro::Task<Suggestion> call = suggester->suggestName(textRequest());
    QTRY_COMPARE_WITH_TIMEOUT(server.requests().size(), 1, 60'000);
    QVERIFY(!suggest(*suggester));
    const Suggestion waitedFor = QCoro::waitFor(call);
    QVERIFY2(waitedFor, qPrintable(failureText(waitedFor)));
    QVERIFY(suggest(*suggester));
    QCOMPARE(server.requests().size(), 3);
}

void ClaudeNameSuggesterTest::endsWhenDestroyed()
{
    Server server([](const Server::Request &) { return Server::silence(); });
    QVERIFY(server.listen());
    auto suggester = suggesterFor(server.address());
    QCoro::Task<Suggestion> call = suggester->suggestName(textRequest());
    QTRY_COMPARE_WITH_TIMEOUT(server.requests().size(), 1, 60'000);
    suggester.reset();
    QCOMPARE(failureText(QCoro::waitFor(call)), u"Operation canceled"_s);
}

void ClaudeNameSuggesterTest::usesProxies_data()
{
    QTest::addColumn<QString>("endpoint");
    QTest::addColumn<QByteArray>("seenByTheProxy");
    QTest::newRow("loopback sent to a proxy") << u"http://127.0.0.1:9"_s << QByteArray();
    QTest::newRow("proxy passed by") << u"https://model.invalid"_s << QByteArray("CONNECT model.invalid:443");
}

void ClaudeNameSuggesterTest::usesProxies()
{
    QFETCH(QString, endpoint);
    QFETCH(QByteArray, seenByTheProxy);
    Server proxy([](const Server::Request &) { return Server::answer(502, "", "Connection: close\r\n"); });
    QVERIFY(proxy.listen());
    for (const char *variable : { "http_proxy", "https_proxy" })
        qputenv(variable, proxy.address().toUtf8());
    const auto suggestion = suggest(*suggesterFor(endpoint));
    for (const char *variable : { "http_proxy", "https_proxy" })
        qunsetenv(variable);
    QVERIFY(!suggestion);
    QByteArray seen;
    for (const Server::Request &request : proxy.requests()) {
        seen += request.method + ' ' + request.target;
        QVERIFY(!request.headers.contains("x-api-key"));
    }
    QCOMPARE(seen, seenByTheProxy);
}

/// Makes key.pem, certificate.pem and the authority.pem that has signed it; "" on success, or why not.
static QString makeCertificate(const QString &folder, const QString &subjectAltName, const QString &end)
{
    // `openssl req` alone cannot make one that has run out; `openssl ca` can, and wants its files for that.
    const QByteArray configuration
        = "[ca]\ndefault_ca=authority\n[authority]\ndatabase=index\nserial=serial\nnew_certs_dir=.\n"
          "default_md=sha256\npolicy=policy\nx509_extensions=extensions\n[policy]\n"
          "commonName=supplied\n[req]\ndistinguished_name=policy\n[extensions]\nsubjectAltName="
        + subjectAltName.toUtf8() + "\n";
    const QHash<QString, QByteArray> files { { u"configuration"_s, configuration }, { u"index"_s, "" },
        { u"serial"_s, "01\n" } };
    for (auto file = files.begin(); file != files.end(); ++file) {
        QFile target(folder + u'/' + file.key());
        if (!target.open(QIODevice::WriteOnly) || target.write(file.value()) != file.value().size())
            return target.errorString();
    }
    const QStringList commands {
        u"req -x509 -newkey rsa:2048 -nodes -keyout authority.key -out authority.pem -days 2 -subj /CN=authority"_s,
        u"req -config configuration -new -newkey rsa:2048 -nodes -keyout key.pem -subj /CN=varlo -out request.pem"_s,
        u"ca -config configuration -batch -notext -cert authority.pem -keyfile authority.key -in request.pem"
        " -out certificate.pem -startdate 20200101000000Z -enddate %1"_s.arg(end),
    };
    for (const QString &command : commands) {
        QProcess openssl;
        openssl.setWorkingDirectory(folder);
        openssl.start(u"openssl"_s, command.split(u' '));
        if (!openssl.waitForFinished() || openssl.exitCode() != 0)
            return openssl.errorString() + QString::fromUtf8(openssl.readAllStandardError());
    }
    return {};
}

void ClaudeNameSuggesterTest::checksCertificate_data()
{
    QTest::addColumn<QString>("subjectAltName");
    QTest::addColumn<QString>("end");
    QTest::addColumn<bool>("isTrusted");
    QTest::addColumn<QString>("text");
    const QString address = u"IP:127.0.0.1"_s;
    const QString future = u"20991231000000Z"_s;
    QTest::newRow("all in order") << address << future << true << QString();
    QTest::newRow("trusted by nobody") << address << future << false << u"issuer certificate"_s;
    QTest::newRow("out of date") << address << u"20210101000000Z"_s << true << u"expired"_s;
    QTest::newRow("another host's") << u"DNS:localhost"_s << future << true << u"host name did not match"_s;
}

void ClaudeNameSuggesterTest::checksCertificate()
{
    QFETCH(QString, subjectAltName);
    QFETCH(QString, end);
    QFETCH(bool, isTrusted);
    QFETCH(QString, text);
    const QTemporaryDir folder;
    const QString problem = makeCertificate(folder.path(), subjectAltName, end);
    QVERIFY2(problem.isEmpty(), qPrintable(problem));
    const QList<QSslCertificate> certificates = QSslCertificate::fromPath(folder.filePath(u"certificate.pem"_s));
    QFile keyFile(folder.filePath(u"key.pem"_s));
    QVERIFY(keyFile.open(QIODevice::ReadOnly));

    QSslConfiguration configuration = QSslConfiguration::defaultConfiguration();
    configuration.setLocalCertificate(certificates.first());
    configuration.setPrivateKey(QSslKey(&keyFile, QSsl::Rsa));
    auto tlsServer = std::make_unique<QSslServer>();
    tlsServer->setSslConfiguration(configuration);
    Server server([](const Server::Request &) { return Server::answer(200, goodBody); }, std::move(tlsServer));
    QVERIFY(server.listen());

    const QSslConfiguration usual = QSslConfiguration::defaultConfiguration();
    QSslConfiguration trusting = usual;
    trusting.addCaCertificates(folder.filePath(u"authority.pem"_s));
    QSslConfiguration::setDefaultConfiguration(isTrusted ? trusting : usual);
    const auto suggestion = suggest(*suggesterFor(u"https://127.0.0.1:%1"_s.arg(server.port())));
    QSslConfiguration::setDefaultConfiguration(usual);
    if (text.isEmpty()) {
        QVERIFY2(suggestion, qPrintable(failureText(suggestion)));
        return;
    }
    QVERIFY2(!suggestion && failureText(suggestion).contains(text), qPrintable(failureText(suggestion)));
    QCOMPARE(server.requests().size(), 0);
}

QTEST_GUILESS_MAIN(ClaudeNameSuggesterTest)
#include "tst_ClaudeNameSuggester.moc"
