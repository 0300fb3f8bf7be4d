// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "updates/readUpdateFeed.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <sodium.h>

namespace Varlo {

using namespace Qt::StringLiterals;

static const unsigned char *bytes(const QByteArray &data)
{
    return reinterpret_cast<const unsigned char *>(data.constData());
}

static bool isSigned(const QByteArray &signature, const QByteArray &content, const QByteArray &publicKey)
{
    return signature.size() == crypto_sign_BYTES && publicKey.size() == crypto_sign_PUBLICKEYBYTES
        && ::sodium_init() >= 0
        && ::crypto_sign_verify_detached(
               bytes(signature), bytes(content), static_cast<unsigned long long>(content.size()), bytes(publicKey))
        == 0;
}

Result<Release, FeedError> readUpdateFeed(const QByteArray &feed, const QByteArray &publicKey)
{
    const qsizetype lineEnd = feed.indexOf('\n');
    if (lineEnd < 0 || feed.size() > longestUpdateFeed)
        return tl::unexpected(FeedError::NotSigned);
    const auto signature = QByteArray::fromBase64Encoding(feed.first(lineEnd), QByteArray::AbortOnBase64DecodingErrors);
    const QByteArray content = feed.sliced(lineEnd + 1);
    if (!signature || !isSigned(*signature, content, publicKey))
        return tl::unexpected(FeedError::NotSigned);

    const QJsonObject object = QJsonDocument::fromJson(content).object();
    const QString words = object.value("version"_L1).toString();
    qsizetype versionEnd = 0;
    const Release release { QVersionNumber::fromString(words, &versionEnd), QUrl(object.value("page"_L1).toString()) };
    if (release.version.isNull() || versionEnd != words.size() || release.page.scheme() != "https"_L1
        || release.page.host().isEmpty()) {
        return tl::unexpected(FeedError::NotUnderstood);
    }
    return release;
}

} // namespace Varlo
