// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <QByteArray>
#include <QHash>
#include <QList>
#include <QObject>
#include <QString>
#include <QTcpServer>

class QTcpSocket;

namespace Varlo {

/// A Messages interface on loopback. It answers as it is told to, well or badly, and keeps what it was sent.
class FakeMessagesServer final : public QObject {
    Q_OBJECT
public:
    struct Request {
        QByteArray method;
        QByteArray target;
        QHash<QByteArray, QList<QByteArray>> headers; ///< by names in lower case, repetitions kept
        QByteArray body;
        int connection = 0; ///< counted from 1

        /// The header's only value; "" when it is missing or repeated.
        [[nodiscard]] QByteArray header(const QByteArray &name) const;
        /// The text block of the message, where the body is as it should be.
        [[nodiscard]] QString prompt() const;
    };

    struct Reply {
        QByteArray bytes; ///< as they go over the wire: head and body
        std::chrono::milliseconds delay { 0 }; ///< before the first byte
        std::chrono::milliseconds byteInterval { 0 }; ///< above 0, one byte at a time
        QByteArray filler = {}; ///< sent behind `bytes`, as long as somebody reads it
        qint64 fillerCount = 0;
        bool closes = false; ///< whether the connection ends with the reply
    };
    using Script = std::function<Reply(const Request &)>;

    /// `server` may be one that encrypts; without one, connections are plain.
    explicit FakeMessagesServer(Script script = plausibleName, std::unique_ptr<QTcpServer> server = {});
    ~FakeMessagesServer() override;

    [[nodiscard]] bool listen(quint16 port = 0);
    /// "http://127.0.0.1:" with the port, whatever the server speaks.
    [[nodiscard]] QString address() const;
    [[nodiscard]] quint16 port() const;
    void setScript(Script script) { m_script = std::move(script); }
    /// Answers with these in turn; the last one stands for all that follow.
    void setReplies(QList<Reply> replies);

    [[nodiscard]] const QList<Request> &requests() const { return m_requests; }
    [[nodiscard]] int connectionCount() const { return m_connectionCount; }
    [[nodiscard]] qint64 fillerBytesSent() const { return m_fillerBytesSent; }

    /// A well-formed answer whose text block holds `text`.
    [[nodiscard]] static Reply text(const QString &text);
    /// A whole answer; its length and content type are added.
    [[nodiscard]] static Reply answer(int status, const QByteArray &body, const QByteArray &moreHeaderLines = {});
    [[nodiscard]] static Reply raw(const QByteArray &bytes, bool closes = false);
    /// Nothing, for ever.
    [[nodiscard]] static Reply silence() { return {}; }
    /// What a model might say: a name made of the first words of the file's contents, and tags where they are asked
    /// for.
    [[nodiscard]] static Reply plausibleName(const Request &request);

private:
    void accept();
    static void callAfter(std::chrono::milliseconds delay, QObject *context, const std::function<void()> &call);
    void takeBytes(QTcpSocket *socket, int connection);
    void send(QTcpSocket *socket, const Reply &reply);
    void sendByteByByte(QTcpSocket *socket, const Reply &reply);
    void sendFiller(QTcpSocket *socket, const Reply &reply);

    std::unique_ptr<QTcpServer> m_server;
    Script m_script;
    QList<Request> m_requests;
    QHash<QTcpSocket *, QByteArray> m_unread;
    int m_connectionCount = 0;
    qint64 m_fillerBytesSent = 0;
};

} // namespace Varlo
