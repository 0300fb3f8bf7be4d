// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "suggestion/encodeRequest.h"

#include "suggestion/buildPrompt.h"
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace Varlo {

using namespace Qt::StringLiterals;

static QJsonObject textBlock(const QString &text) { return { { u"type"_s, u"text"_s }, { u"text"_s, text } }; }

static QJsonObject imageBlock(const ImageContent &image)
{
    const QJsonObject source {
        { u"type"_s, u"base64"_s },
        { u"media_type"_s, image.mimeType },
        { u"data"_s, QString::fromLatin1(image.data.toBase64()) },
    };
    return { { u"type"_s, u"image"_s }, { u"source"_s, source } };
}

static QJsonArray contentBlocks(const SuggestionRequest &request)
{
    const auto prompt = [&request](const std::optional<QString> &text, const std::optional<QString> &metadata) {
        return buildPrompt(
            request.existingName, request.language, text, request.nameTemplate, metadata, request.includeTags);
    };
    return std::visit(
        Overloaded {
            [&](const TextContent &content) { return QJsonArray { textBlock(prompt(content.text, {})) }; },
            [&](const ImageContent &image) {
                return QJsonArray { imageBlock(image), textBlock(prompt({}, image.metadata)) };
            },
        },
        request.content);
}

QByteArray encodeRequest(const QString &model, const SuggestionRequest &request)
{
    const QJsonObject message { { u"role"_s, u"user"_s }, { u"content"_s, contentBlocks(request) } };
    const QJsonObject body {
        { u"model"_s, model },
        { u"max_tokens"_s, 80 }, // one short line for the name and one for the tags
        { u"temperature"_s, 0 },
        { u"messages"_s, QJsonArray { message } },
    };
    return QJsonDocument(body).toJson(QJsonDocument::Compact);
}

} // namespace Varlo
