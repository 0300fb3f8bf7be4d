// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Message.h"
#include "updates/readUpdateFeed.h"
#include <chrono>
#include <QCoroTask>
#include <QObject>

class QNetworkAccessManager;

namespace Varlo {

/// Where releases are published, and the key of those who do so.
struct UpdateFeed {
    QUrl address; ///< over https, or over http on this computer
    QByteArray publicKey; ///< 32 bytes

    /// Nothing where a build names none, or one that may not be asked. The key is in base64.
    [[nodiscard]] static std::optional<UpdateFeed> parse(const QString &address, const QByteArray &key);
};

/// Asks the feed for the latest release. It sends nothing of the user's, and changes nothing on the computer.
class UpdateChecker final : public QObject {
    Q_OBJECT
public:
    explicit UpdateChecker(
        UpdateFeed feed, std::chrono::milliseconds longestWait = std::chrono::seconds(15), QObject *parent = nullptr);
    ~UpdateChecker() override;

    /// The release that the feed names, of whatever version, or why it could not be learnt.
    [[nodiscard]] QCoro::Task<Result<Release, Message>> latestRelease();

private:
    UpdateFeed m_feed;
    std::chrono::milliseconds m_longestWait;
    QNetworkAccessManager *m_network; // outlives this object by the replies that are waited for
};

} // namespace Varlo
