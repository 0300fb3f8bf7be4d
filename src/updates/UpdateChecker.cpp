// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "updates/UpdateChecker.h"

#include <QCoreApplication>
#include <QCoroSignal>
#include <QHostAddress>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QTimer>

namespace Varlo {

using namespace Qt::StringLiterals;

std::optional<UpdateFeed> UpdateFeed::parse(const QString &address, const QByteArray &key)
{
    constexpr qsizetype keyLength = 32;
    const UpdateFeed feed { QUrl(address, QUrl::StrictMode), QByteArray::fromBase64(key) };
    const bool isLoopback = QHostAddress(feed.address.host()).isLoopback();
    const bool mayBeAsked = feed.address.scheme() == "https"_L1 || (feed.address.scheme() == "http"_L1 && isLoopback);
    const bool isUsable
        = feed.address.isValid() && !feed.address.host().isEmpty() && mayBeAsked && feed.publicKey.size() == keyLength;
    return isUsable ? std::optional(feed) : std::nullopt;
}

UpdateChecker::UpdateChecker(UpdateFeed feed, std::chrono::milliseconds longestWait, QObject *parent)
    : QObject(parent)
    , m_feed(std::move(feed))
    , m_longestWait(longestWait)
    , m_network(new QNetworkAccessManager)
{
}

static QNetworkRequest feedRequest(const QUrl &address)
{
    QNetworkRequest request(address);
    request.setHeader(QNetworkRequest::UserAgentHeader, QStringLiteral("Varlo/" VARLO_VERSION));
    // Left to itself, Qt inflates what comes without a limit, and follows a redirection anywhere.
    request.setRawHeader("Accept-Encoding", "identity");
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::ManualRedirectPolicy);
    request.setAttribute(QNetworkRequest::CookieLoadControlAttribute, QNetworkRequest::Manual);
    request.setAttribute(QNetworkRequest::CookieSaveControlAttribute, QNetworkRequest::Manual);
    request.setAttribute(QNetworkRequest::CacheLoadControlAttribute, QNetworkRequest::AlwaysNetwork);
    return request;
}

static Message description(FeedError error)
{
    switch (error) {
    case FeedError::NotSigned:
        //: Error of the check for updates when what came was not signed by the makers of the program
        return { "UpdateChecker", QT_TRANSLATE_NOOP("UpdateChecker", "What was received does not come from Varlo.") };
    case FeedError::NotUnderstood:
        return { "UpdateChecker", QT_TRANSLATE_NOOP("UpdateChecker", "What was received cannot be understood.") };
    }
    Q_UNREACHABLE();
}

static Message tooSlow() { return { "UpdateChecker", QT_TRANSLATE_NOOP("UpdateChecker", "No answer came in time.") }; }

/// What came before the reply ended or was cut off.
struct FeedAnswer {
    QByteArray feed;
    bool isLate = false;
};

static std::shared_ptr<FeedAnswer> receive(QNetworkReply *reply, std::chrono::milliseconds longestWait)
{
    const auto answer = std::make_shared<FeedAnswer>();
    // Left to itself, Qt reads on into its own memory, and its own limit starts again with each byte.
    reply->setReadBufferSize(longestUpdateFeed + 1);
    QTimer::singleShot(longestWait, reply, [reply, answer] {
        answer->isLate = !reply->isFinished();
        reply->abort();
    });
    QObject::connect(reply, &QNetworkReply::readyRead, reply, [reply, answer] {
        answer->feed += reply->readAll();
        if (answer->feed.size() > longestUpdateFeed && !reply->isFinished())
            reply->abort();
    });
    return answer;
}

static Result<Release, Message> releaseIn(QNetworkReply &reply, const FeedAnswer &answer, const QByteArray &publicKey)
{
    if (answer.isLate)
        return tl::unexpected(tooSlow());
    if (answer.feed.size() > longestUpdateFeed)
        return tl::unexpected(description(FeedError::NotSigned));
    if (reply.error() != QNetworkReply::NoError)
        return tl::unexpected(Message(reply.errorString()));
    const int status = reply.attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    if (status != 200)
        return tl::unexpected(Message("HTTP "_L1 + QString::number(status)));
    return readUpdateFeed(answer.feed + reply.readAll(), publicKey).map_error([](FeedError error) {
        return description(error);
    });
}

UpdateChecker::~UpdateChecker()
{
    // Whoever waits for a reply is told through the event loop that it has ended, and needs it until then.
    const auto replies = m_network->findChildren<QNetworkReply *>();
    for (QNetworkReply *reply : replies)
        reply->abort();
    m_network->deleteLater();
}

QCoro::Task<Result<Release, Message>> UpdateChecker::latestRelease()
{
    const QByteArray publicKey = m_feed.publicKey;
    QNetworkReply *const reply = m_network->get(feedRequest(m_feed.address));
    const std::shared_ptr<FeedAnswer> answer = receive(reply, m_longestWait);
    co_await qCoro(reply, &QNetworkReply::finished);
    reply->deleteLater();
    co_return releaseIn(*reply, *answer, publicKey);
}

} // namespace Varlo
