// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "fakes/FakeMessagesServer.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSocketNotifier>
#include <QTcpSocket>
#include <QTimer>
#include <sys/timerfd.h>
#include <unistd.h>

namespace Varlo {

using namespace Qt::StringLiterals;

QByteArray FakeMessagesServer::Request::header(const QByteArray &name) const
{
    const QList<QByteArray> values = headers.value(name);
    return values.size() == 1 ? values.first() : QByteArray();
}

QString FakeMessagesServer::Request::prompt() const
{
    const QJsonArray messages = QJsonDocument::fromJson(body).object().value("messages"_L1).toArray();
    const QJsonArray blocks = messages.at(0)["content"_L1].toArray();
    return blocks.isEmpty() ? QString() : blocks.last()["text"_L1].toString();
}

FakeMessagesServer::FakeMessagesServer(Script script, std::unique_ptr<QTcpServer> server)
    : m_server(server ? std::move(server) : std::make_unique<QTcpServer>())
    , m_script(std::move(script))
{
    // Unlike newConnection(), this one waits for the end of a TLS handshake.
    connect(m_server.get(), &QTcpServer::pendingConnectionAvailable, this, &FakeMessagesServer::accept);
}

FakeMessagesServer::~FakeMessagesServer() { m_server.reset(); } // while its sockets can still tell of their end

bool FakeMessagesServer::listen(quint16 port) { return m_server->listen(QHostAddress::LocalHost, port); }

quint16 FakeMessagesServer::port() const { return m_server->serverPort(); }

QString FakeMessagesServer::address() const { return u"http://127.0.0.1:%1"_s.arg(port()); }

void FakeMessagesServer::setReplies(QList<Reply> replies)
{
    m_script = [replies = std::move(replies), next = qsizetype(0)](
                   const Request &) mutable { return replies.at(std::min(next++, replies.size() - 1)); };
}

FakeMessagesServer::Reply FakeMessagesServer::answer(
    int status, const QByteArray &body, const QByteArray &moreHeaderLines)
{
    return { .bytes = "HTTP/1.1 " + QByteArray::number(status) + " Status\r\nContent-Type: application/json\r\n"
            + "Content-Length: " + QByteArray::number(body.size()) + "\r\n" + moreHeaderLines + "\r\n" + body };
}

FakeMessagesServer::Reply FakeMessagesServer::text(const QString &text)
{
    const QJsonObject block { { u"type"_s, u"text"_s }, { u"text"_s, text } };
    return answer(200, QJsonDocument(QJsonObject { { u"content"_s, QJsonArray { block } } }).toJson());
}

FakeMessagesServer::Reply FakeMessagesServer::raw(const QByteArray &bytes, bool closes)
{
    Reply reply { .bytes = bytes };
    reply.closes = closes;
    return reply;
}

FakeMessagesServer::Reply FakeMessagesServer::plausibleName(const Request &request)
{
    if (request.header("x-api-key").isEmpty())
        return answer(401, R"({"error":{"type":"authentication_error","message":"x-api-key header is required"}})");
    const QString prompt = request.prompt();
    if (prompt.isEmpty())
        return answer(400, R"({"error":{"type":"invalid_request_error","message":"messages: not as expected"}})");

    const auto marker = "\n---\nFile contents:\n"_L1;
    const qsizetype contents = prompt.indexOf(marker);
    const QString subject
        = contents < 0 ? u"Photo without description"_s : prompt.mid(contents + marker.size(), 80).simplified();
    const QStringList words = subject.split(u' ', Qt::SkipEmptyParts).mid(0, 6);
    if (words.isEmpty())
        return text(u"NO_CONTENT"_s);
    const bool wantsTags = prompt.contains("\nTAGS (the second line only):\n"_L1);
    return text(words.join(u' ') + (wantsTags ? "\nTAGS: example, "_L1 + words.first() : QString()));
}

void FakeMessagesServer::accept()
{
    while (QTcpSocket *socket = m_server->nextPendingConnection()) {
        const int connection = ++m_connectionCount;
        connect(socket, &QTcpSocket::readyRead, this, [this, socket, connection] { takeBytes(socket, connection); });
        connect(socket, &QTcpSocket::disconnected, this, [this, socket] {
            m_unread.remove(socket);
            socket->deleteLater();
        });
        takeBytes(socket, connection);
    }
}

void FakeMessagesServer::takeBytes(QTcpSocket *socket, int connection)
{
    QByteArray &unread = m_unread[socket];
    unread += socket->readAll();
    const qsizetype headEnd = unread.indexOf("\r\n\r\n");
    if (headEnd < 0)
        return;

    QList<QByteArray> lines = unread.first(headEnd).split('\n');
    const QList<QByteArray> requestLine = lines.takeFirst().trimmed().split(' ');
    Request request { .method = requestLine.value(0), .target = requestLine.value(1), .headers = {}, .body = {} };
    request.connection = connection;
    for (const QByteArray &line : std::as_const(lines)) {
        const qsizetype colon = line.indexOf(':');
        request.headers[line.first(colon).toLower()].append(line.sliced(colon + 1).trimmed());
    }
    const qsizetype bodyStart = headEnd + 4;
    const qsizetype bodyLength = request.header("content-length").toLongLong();
    if (unread.size() < bodyStart + bodyLength)
        return;
    request.body = unread.sliced(bodyStart, bodyLength);
    unread.remove(0, bodyStart + bodyLength);

    m_requests.append(request);
    const Reply reply = m_script(request);
    callAfter(reply.delay, socket, [this, socket, reply] { send(socket, reply); });
}

/// To the microsecond: Qt's timers count whole milliseconds, and benchmarks count on the delay.
void FakeMessagesServer::callAfter(std::chrono::milliseconds delay, QObject *context, const std::function<void()> &call)
{
    if (delay.count() == 0) {
        QTimer::singleShot(0, context, call);
        return;
    }
    const std::chrono::seconds seconds = std::chrono::duration_cast<std::chrono::seconds>(delay);
    itimerspec expiry {};
    expiry.it_value.tv_sec = seconds.count();
    expiry.it_value.tv_nsec = std::chrono::nanoseconds(delay - seconds).count();
    const int timer = ::timerfd_create(CLOCK_MONOTONIC, TFD_CLOEXEC | TFD_NONBLOCK);
    ::timerfd_settime(timer, 0, &expiry, nullptr);
    auto *notifier = new QSocketNotifier(timer, QSocketNotifier::Read, context);
    connect(notifier, &QObject::destroyed, [timer] { ::close(timer); });
    connect(notifier, &QSocketNotifier::activated, context, [notifier, call] {
        notifier->setEnabled(false);
        notifier->deleteLater();
        call();
    });
}

void FakeMessagesServer::send(QTcpSocket *socket, const Reply &reply)
{
    if (reply.byteInterval.count() > 0) {
        sendByteByByte(socket, reply);
        return;
    }
    socket->write(reply.bytes);
    if (reply.fillerCount > 0)
        sendFiller(socket, reply);
    else if (reply.closes)
        socket->disconnectFromHost();
}

void FakeMessagesServer::sendByteByByte(QTcpSocket *socket, const Reply &reply)
{
    auto *timer = new QTimer(socket);
    connect(timer, &QTimer::timeout, socket, [socket, timer, bytes = reply.bytes, next = qsizetype(0)]() mutable {
        if (next < bytes.size())
            socket->write(bytes.constData() + next++, 1);
        else
            timer->stop();
    });
    timer->start(reply.byteInterval);
}

void FakeMessagesServer::sendFiller(QTcpSocket *socket, const Reply &reply)
{
    // The next piece waits until the one before has gone to the kernel, so that this side's memory stays flat too.
    const auto sendNext = [this, socket, reply, left = reply.fillerCount]() mutable {
        if (left == 0 || socket->bytesToWrite() > reply.filler.size())
            return;
        --left;
        m_fillerBytesSent += reply.filler.size();
        socket->write(reply.filler);
        if (left == 0 && reply.closes)
            socket->disconnectFromHost();
    };
    connect(socket, &QTcpSocket::bytesWritten, this, sendNext);
}

} // namespace Varlo
