// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QIODevice>

namespace Varlo {

/// A request's body that can be read once. QNetworkAccessManager silently sends a request again, a POST too, when the
/// connection closes before an answer; a body that cannot be rewound makes that attempt end as
/// QNetworkReply::ContentReSendError. (Qt copies a QBuffer's data and rewinds the copy, so this is none.)
class OneTimeBody final : public QIODevice {
    Q_OBJECT
public:
    explicit OneTimeBody(QByteArray bytes, QObject *parent = nullptr);

    [[nodiscard]] qint64 size() const override;
    bool seek(qint64 position) override;

protected:
    qint64 readData(char *target, qint64 limit) override;
    qint64 writeData(const char *source, qint64 length) override;

private:
    QByteArray m_bytes;
    qint64 m_sent = 0;
};

} // namespace Varlo
