// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/Endpoint.h"

#include <algorithm>
#include <QCoreApplication>

namespace Varlo {

using namespace Qt::StringLiterals;

static bool isLoopbackHost(const QString &host)
{
    if (host == "localhost"_L1 || host == "::1"_L1)
        return true;
    // QUrl has already turned every spelling of an IPv4 address that resolvers take (2130706433, 0x7f.1) into four
    // decimal numbers, while a host name that merely starts like one may have any length and any ending.
    const QStringList parts = host.split(u'.');
    const auto isOctet = [](const QString &part) {
        bool isNumber = false;
        return part.toUShort(&isNumber) <= 255 && isNumber;
    };
    return parts.size() == 4 && parts.front() == "127"_L1 && std::all_of(parts.begin(), parts.end(), isOctet);
}

static int schemePort(const QUrl &url) { return url.scheme() == "https"_L1 ? 443 : 80; }

/// Two spellings of one address become equal, and a path can be joined to it.
static QUrl normalized(QUrl url)
{
    if (url.port() == schemePort(url))
        url.setPort(-1);
    QString path = url.path(QUrl::FullyEncoded);
    while (path.endsWith(u'/'))
        path.chop(1);
    url.setPath(path, QUrl::StrictMode);
    return url;
}

Endpoint::Endpoint(QUrl baseAddress)
    : m_baseAddress(std::move(baseAddress))
{
}

Endpoint Endpoint::hosted() { return Endpoint(QUrl(u"https://api.anthropic.com"_s)); }

Result<Endpoint, Endpoint::Error> Endpoint::parse(const QString &baseAddress)
{
    if (baseAddress.trimmed().isEmpty())
        return hosted();
    const QUrl url(baseAddress.trimmed(), QUrl::StrictMode);
    if (!url.isValid() || url.isRelative() || url.host().isEmpty())
        return tl::unexpected(Error::NotAnAddress);
    if (url.scheme() != "https"_L1 && url.scheme() != "http"_L1)
        return tl::unexpected(Error::UnsupportedScheme);
    if (url.authority().contains(u'@')) // also the empty ones of "http://@host"
        return tl::unexpected(Error::HasCredentials);
    if (url.hasQuery() || url.hasFragment())
        return tl::unexpected(Error::HasQueryOrFragment);
    if (url.scheme() == "http"_L1 && !isLoopbackHost(url.host()))
        return tl::unexpected(Error::PlainHttpBeyondLoopback);
    return Endpoint(normalized(url));
}

QUrl Endpoint::messagesUrl() const
{
    QUrl url = m_baseAddress;
    url.setPath(m_baseAddress.path(QUrl::FullyEncoded) + "/v1/messages"_L1, QUrl::StrictMode);
    return url;
}

QString Endpoint::origin() const { return m_baseAddress.toString(QUrl::RemovePath | QUrl::FullyEncoded); }

bool Endpoint::isHosted() const { return origin() == hosted().origin(); }

bool Endpoint::isLoopback() const { return isLoopbackHost(m_baseAddress.host()); }

QString Endpoint::account() const { return isHosted() ? u"anthropic"_s : origin(); }

QString description(Endpoint::Error error)
{
    switch (error) {
    case Endpoint::Error::NotAnAddress:
        //: About the address of the model's interface, as typed by the user
        return QCoreApplication::translate("Endpoint", "This is not an address. It looks like https://host/path.");
    case Endpoint::Error::UnsupportedScheme:
        //: About the address of the model's interface, as typed by the user
        return QCoreApplication::translate("Endpoint", "The address must start with https://.");
    case Endpoint::Error::PlainHttpBeyondLoopback:
        //: About the address of the model's interface; http would carry the API key unencrypted
        return QCoreApplication::translate(
            "Endpoint", "http:// is accepted for this computer only. Use https:// for any other.");
    case Endpoint::Error::HasCredentials:
        //: About the address of the model's interface, as typed by the user
        return QCoreApplication::translate("Endpoint", "The address must not hold a user name or password.");
    case Endpoint::Error::HasQueryOrFragment:
        //: About the address of the model's interface; "?" and "#" start parts that cannot be used here
        return QCoreApplication::translate("Endpoint", "The address must not hold “?” or “#”.");
    }
    Q_UNREACHABLE();
}

} // namespace Varlo
