// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "suggestion/ClaudeNameSuggester.h"

#include "suggestion/decodeReply.h"
#include "suggestion/encodeRequest.h"
#include "suggestion/interpretReply.h"
#include "suggestion/OneTimeBody.h"
#include <QCoreApplication>
#include <QCoroFuture>
#include <QCoroSignal>
#include <QNetworkAccessManager>
#include <QNetworkProxyFactory>
#include <QNetworkReply>
#include <QPointer>
#include <QtConcurrentRun>
#include <QTimer>

namespace Varlo {

using namespace Qt::StringLiterals;

/// The proxy that the environment or the desktop names for an address.
struct SystemProxies final : QNetworkProxyFactory {
    QList<QNetworkProxy> queryProxy(const QNetworkProxyQuery &query) override { return systemProxyForQuery(query); }
};

/// What came back of one request, as far as it was read.
struct HttpAnswer {
    enum class CutOff { ByTime, BySize };
    std::optional<CutOff> cutOff;
    QByteArray body;
};

static Message words(const char *text) { return { "ClaudeNameSuggester", text }; }

static tl::unexpected<NameSuggestionError> failure(NameSuggestionError error)
{
    return tl::unexpected(std::move(error));
}

static tl::unexpected<NameSuggestionError> transportFailure(const Message &description)
{
    return failure(TransportError { description });
}

static tl::unexpected<NameSuggestionError> cancelled()
{
    return transportFailure(words(QT_TRANSLATE_NOOP("ClaudeNameSuggester", "The request was cancelled.")));
}

/// The key as the header's value. Qt writes a line break in a header as it stands, so one inside a key would start
/// another header; those at its ends come from pasting and are dropped.
static Result<QByteArray, NameSuggestionError> headerValue(const Result<QString, SecretStore::Failure> &loadedKey)
{
    if (!loadedKey && loadedKey.error() == SecretStore::Failure::Locked)
        return failure(LockedAPIKey {});
    if (!loadedKey)
        return failure(MissingAPIKey {});
    const auto isLineBreak = [](QChar character) { return character == u'\r' || character == u'\n'; };
    QStringView key = *loadedKey;
    while (!key.isEmpty() && isLineBreak(key.back()))
        key.chop(1);
    while (!key.isEmpty() && isLineBreak(key.front()))
        key = key.sliced(1);
    if (key.isEmpty())
        return failure(MissingAPIKey {});
    const auto isControl = [](QChar character) { return character.category() == QChar::Other_Control; };
    if (std::any_of(key.begin(), key.end(), isControl))
        return failure(UnusableAPIKey {});
    return key.toUtf8();
}

/// An endpoint may repeat the key in its complaint about it, and a row's message is shown, copied and written as JSON.
static NameSuggestionError withoutKey(NameSuggestionError error, const QByteArray &key)
{
    // What is shorter is no secret ("test" for a server at home), and could be a word of the message.
    constexpr qsizetype shortestSecret = 8;
    if (key.size() < shortestSecret)
        return error;
    const QString secret = QString::fromUtf8(key);
    if (auto *refusal = std::get_if<ApiError>(&error))
        refusal->message.replace(secret, u"•••"_s);
    else if (auto *failure = std::get_if<TransportError>(&error))
        failure->description = failure->description.replaced(secret, u"•••"_s);
    return error;
}

static QNetworkRequest messagesRequest(const QUrl &url, const QByteArray &key)
{
    QNetworkRequest request(url);
    request.setRawHeader("x-api-key", key);
    request.setRawHeader("anthropic-version", "2023-06-01");
    request.setHeader(QNetworkRequest::ContentTypeHeader, "application/json"_L1);
    request.setHeader(QNetworkRequest::UserAgentHeader, QStringLiteral("Varlo/" VARLO_VERSION));
    // Left to itself, Qt offers compression and inflates what comes without a limit.
    request.setRawHeader("Accept-Encoding", "identity");
    // Left to itself, Qt carries the key and the document wherever a redirection points.
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::ManualRedirectPolicy);
    // OneTimeBody's promise of one request a call is kept by Qt's HTTP/1.1 code.
    request.setAttribute(QNetworkRequest::Http2AllowedAttribute, false);
    request.setAttribute(QNetworkRequest::CookieLoadControlAttribute, QNetworkRequest::Manual);
    request.setAttribute(QNetworkRequest::CookieSaveControlAttribute, QNetworkRequest::Manual);
    request.setAttribute(QNetworkRequest::AuthenticationReuseAttribute, QNetworkRequest::Manual);
    request.setAttribute(QNetworkRequest::CacheLoadControlAttribute, QNetworkRequest::AlwaysNetwork);
    request.setAttribute(QNetworkRequest::CacheSaveControlAttribute, false);
    return request;
}

/// Waits until the reply is complete or over a limit. QNetworkRequest's own time limit would start again with each
/// byte.
static QCoro::Task<HttpAnswer> receive(QNetworkReply *reply, RequestLimits limits)
{
    const auto answer = std::make_shared<HttpAnswer>();
    const auto takeBytes = [reply, answer, limits] {
        answer->body += reply->readAll();
        if (answer->body.size() <= limits.replyBytes || reply->isFinished())
            return;
        answer->cutOff = HttpAnswer::CutOff::BySize;
        reply->abort();
    };
    QObject::connect(reply, &QNetworkReply::readyRead, reply, takeBytes);
    QTimer::singleShot(limits.wholeCall, reply, [reply, answer] {
        if (reply->isFinished())
            return;
        answer->cutOff = HttpAnswer::CutOff::ByTime;
        reply->abort();
    });
    if (!reply->isFinished())
        co_await qCoro(reply, &QNetworkReply::finished);
    if (reply->isOpen()) // else it was aborted
        takeBytes();
    co_return std::move(*answer);
}

/// Whether Qt's error stands for a connection that failed, as opposed to an answer whose status it disapproves of.
static bool isTransportError(const QNetworkReply &reply, int httpStatus)
{
    if (reply.error() == QNetworkReply::NoError)
        return false;
    return httpStatus == 0 || httpStatus == 200 || reply.error() < QNetworkReply::ProxyConnectionRefusedError;
}

static int statusOf(const QNetworkReply &reply)
{
    return reply.attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
}

static bool isConnectionLost(const QNetworkReply &reply, const HttpAnswer &answer)
{
    return answer.cutOff || isTransportError(reply, statusOf(reply));
}

static Message transportErrorText(const QNetworkReply &reply)
{
    if (reply.error() == QNetworkReply::ContentReSendError) // see OneTimeBody; Qt's text is "Unknown error"
        return words(QT_TRANSLATE_NOOP("ClaudeNameSuggester", "The connection was closed before an answer came."));
    return reply.errorString();
}

static Result<QString, NameSuggestionError> decodeAnswer(
    const QNetworkReply &reply, const HttpAnswer &answer, const RequestLimits &limits)
{
    if (answer.cutOff == HttpAnswer::CutOff::ByTime) {
        //: Shown in a file's row; %1 is a number of seconds
        return transportFailure({ "ClaudeNameSuggester",
            QT_TRANSLATE_NOOP("ClaudeNameSuggester", "The model did not answer within %1 seconds."),
            { QString::number(std::chrono::ceil<std::chrono::seconds>(limits.wholeCall).count()) } });
    }
    const int httpStatus = statusOf(reply);
    if (!answer.cutOff && isTransportError(reply, httpStatus))
        return transportFailure(transportErrorText(reply));
    if (httpStatus == 200 && answer.body.size() > limits.replyBytes)
        return transportFailure(
            words(QT_TRANSLATE_NOOP("ClaudeNameSuggester", "The model's reply is too long to be one.")));
    return decodeReply(httpStatus, answer.body);
}

ClaudeNameSuggester::ClaudeNameSuggester(
    Endpoint endpoint, QString model, KeyLoader loadKey, QObject *parent, RequestLimits limits)
    : QObject(parent)
    , m_endpoint(std::move(endpoint))
    , m_model(model.isEmpty() ? QString::fromLatin1(usualModel) : std::move(model))
    , m_loadKey(std::move(loadKey))
    , m_limits(limits)
{
}

ClaudeNameSuggester::~ClaudeNameSuggester()
{
    // Each call in flight waits for its reply's finished(), which arrives through the event loop.
    const std::set<QNetworkReply *> replies = m_awaitedReplies;
    for (QNetworkReply *reply : replies)
        reply->abort();
    QNetworkAccessManager *const idle = m_network.use_count() == 1 ? m_network.get() : nullptr;
    m_network.reset();
    if (idle) // which no event loop may come to delete
        QCoreApplication::sendPostedEvents(idle, QEvent::DeferredDelete);
}

std::shared_ptr<QNetworkAccessManager> ClaudeNameSuggester::network()
{
    if (m_network)
        return m_network;
    // Whoever is the last to let go of it may be called by one of its replies.
    m_network.reset(new QNetworkAccessManager, [](QNetworkAccessManager *network) { network->deleteLater(); });
    if (m_endpoint.isLoopback())
        m_network->setProxy(QNetworkProxy::NoProxy);
    else
        m_network->setProxyFactory(new SystemProxies); // which the manager then owns
    return m_network;
}

QNetworkReply *ClaudeNameSuggester::post(
    QNetworkAccessManager &network, const QByteArray &body, const QByteArray &key) const
{
    auto *device = new OneTimeBody(body);
    QNetworkReply *reply = network.post(messagesRequest(m_endpoint.messagesUrl(), key), device);
    device->setParent(reply);
    // Without this, Qt reads on into its own memory while the event loop is busy.
    reply->setReadBufferSize(m_limits.replyBytes);
    return reply;
}

QCoro::Task<Result<QString, NameSuggestionError>> ClaudeNameSuggester::ask(SuggestionRequest request, QByteArray key)
{
    const QPointer<ClaudeNameSuggester> self = this;
    QByteArray body;
    if (std::holds_alternative<ImageContent>(request.content)) {
        QFuture<QByteArray> encoding = QtConcurrent::run(&encodeRequest, m_model, request);
        body = co_await encoding;
    } else {
        body = encodeRequest(m_model, request);
    }
    if (!self)
        co_return cancelled();
    const RequestLimits limits = m_limits;
    const std::shared_ptr<QNetworkAccessManager> network = this->network();
    QNetworkReply *const reply = post(*network, body, key);
    m_awaitedReplies.insert(reply);
    const HttpAnswer answer = co_await receive(reply, limits);
    reply->deleteLater();
    if (self) {
        m_awaitedReplies.erase(reply);
        // Qt 6.8 may give the next call the connection of one that has just failed. To clear the manager's connections
        // would silence the other calls, which keep it.
        if (m_network == network && isConnectionLost(*reply, answer))
            m_network.reset();
    }
    co_return decodeAnswer(*reply, answer, limits);
}

QCoro::Task<Result<NameSuggestion, NameSuggestionError>> ClaudeNameSuggester::suggestName(SuggestionRequest request)
{
    const QPointer<ClaudeNameSuggester> self = this;
    const Result<QString, SecretStore::Failure> loadedKey = co_await m_loadKey();
    if (!self)
        co_return cancelled();
    const Result<QByteArray, NameSuggestionError> key = headerValue(loadedKey);
    if (!key)
        co_return failure(key.error());

    const bool includeTags = request.includeTags;
    const Result<QString, NameSuggestionError> text = co_await ask(std::move(request), *key);
    if (!text)
        co_return failure(withoutKey(text.error(), *key));
    const Result<NameSuggestion, ReplyError> suggestion = interpretReply(*text, includeTags);
    if (suggestion)
        co_return *suggestion;
    if (suggestion.error() == ReplyError::NoReadableContent)
        co_return failure(NoReadableContent {});
    co_return failure(InvalidResponse {});
}

} // namespace Varlo
