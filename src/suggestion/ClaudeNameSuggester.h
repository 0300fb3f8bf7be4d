// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/SecretStore.h"
#include "settings/Endpoint.h"
#include "suggestion/makeModelClient.h"
#include "suggestion/NameSuggestionService.h"
#include <chrono>
#include <memory>
#include <QObject>
#include <set>

class QNetworkAccessManager;
class QNetworkReply;

namespace Varlo {

/// What one request may cost; an endpoint that takes more has failed.
struct RequestLimits {
    std::chrono::milliseconds wholeCall = std::chrono::seconds(60); ///< from the first byte sent to the last received
    qint64 replyBytes = qint64(1) << 20;
};

/// Asks a language model through the Messages interface for a name: one POST a file, never repeated, never redirected.
/// Lives on the main thread; calls may overlap, and share connections. Destroyed in the middle of a call, the call ends
/// as a TransportError. Qt's network classes are made at the first request.
class ClaudeNameSuggester final : public QObject, public NameSuggestionService {
    Q_OBJECT
public:
    /// `model` "" stands for the usual one. `loadKey` is called afresh for each request, so that a key entered
    /// meanwhile holds for the next file.
    ClaudeNameSuggester(
        Endpoint endpoint, QString model, KeyLoader loadKey, QObject *parent = nullptr, RequestLimits limits = {});
    ~ClaudeNameSuggester() override;

    [[nodiscard]] QCoro::Task<Result<NameSuggestion, NameSuggestionError>> suggestName(
        SuggestionRequest request) override;

private:
    [[nodiscard]] QCoro::Task<Result<QString, NameSuggestionError>> ask(SuggestionRequest request, QByteArray key);
    [[nodiscard]] QNetworkReply *post(
        QNetworkAccessManager &network, const QByteArray &body, const QByteArray &key) const;
    [[nodiscard]] std::shared_ptr<QNetworkAccessManager> network();

    Endpoint m_endpoint;
    QString m_model;
    KeyLoader m_loadKey;
    RequestLimits m_limits;
    std::shared_ptr<QNetworkAccessManager> m_network; // each call in flight holds the one that it began with
    std::set<QNetworkReply *> m_awaitedReplies;
};

} // namespace Varlo
