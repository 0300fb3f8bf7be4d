// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "suggestion/decodeReply.h"

#include <algorithm>
#include <optional>
#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace Varlo {

using namespace Qt::StringLiterals;

static ApiError refusal(int httpStatus, const QByteArray &body)
{
    const QJsonValue message = QJsonDocument::fromJson(body).object().value("error"_L1).toObject().value("message"_L1);
    return { message.isString() ? message.toString() : "HTTP "_L1 + QString::number(httpStatus),
        httpStatus == 401 || httpStatus == 403 }; // RFC 9110: credentials not valid, or not enough
}

static TransportError undecodable(const Message &reason)
{
    //: Shown in a file's row; %1 says what is wrong with the reply's JSON
    return { { "ClaudeNameSuggester",
        QT_TRANSLATE_NOOP("ClaudeNameSuggester", "The model's reply could not be read: %1."), { reason } } };
}

static bool isContentBlock(const QJsonValue &block)
{
    const QJsonValue text = block["text"_L1];
    return block["type"_L1].isString() && (text.isString() || text.isNull() || text.isUndefined());
}

static std::optional<QString> firstText(const QJsonArray &blocks)
{
    for (const QJsonValueConstRef block : blocks) {
        if (block["type"_L1] != "text"_L1)
            continue;
        const QJsonValue text = block["text"_L1];
        return text.isString() ? std::optional(text.toString()) : std::nullopt;
    }
    return {};
}

Result<QString, NameSuggestionError> decodeReply(int httpStatus, const QByteArray &body)
{
    if (httpStatus != 200)
        return tl::unexpected(refusal(httpStatus, body));

    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(body, &error);
    if (error.error != QJsonParseError::NoError)
        return tl::unexpected(undecodable(error.errorString()));
    const QJsonValue content = document.object().value("content"_L1);
    const QJsonArray blocks = content.toArray();
    if (!content.isArray() || !std::all_of(blocks.begin(), blocks.end(), isContentBlock)) {
        return tl::unexpected(undecodable({ "ClaudeNameSuggester",
            QT_TRANSLATE_NOOP("ClaudeNameSuggester", "it has no well-formed list of content blocks") }));
    }
    const std::optional<QString> text = firstText(blocks);
    if (!text)
        return tl::unexpected(InvalidResponse {});
    return *text;
}

} // namespace Varlo
