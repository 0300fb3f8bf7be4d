// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Result.h"
#include <QString>
#include <QUrl>

namespace Varlo {

/// Where the model's Messages interface is reached, checked to be safe to send a key and documents to.
class Endpoint {
public:
    enum class Error {
        NotAnAddress, ///< not an absolute URL with a host
        UnsupportedScheme, ///< neither https nor http
        PlainHttpBeyondLoopback, ///< http would carry the key unencrypted off this machine
        HasCredentials, ///< "user:password@" in it
        HasQueryOrFragment,
    };

    /// The hosted interface.
    [[nodiscard]] static Endpoint hosted();
    /// `baseAddress` is an https URL, or an http URL of 127.0.0.0/8, ::1 or localhost. "" stands for the hosted one.
    [[nodiscard]] static Result<Endpoint, Error> parse(const QString &baseAddress);

    /// The base address joined with "/v1/messages".
    [[nodiscard]] QUrl messagesUrl() const;
    /// Scheme, host and port, as in "http://127.0.0.1:8080"; the port is left out where it is the scheme's own.
    [[nodiscard]] QString origin() const;
    [[nodiscard]] bool isHosted() const;
    [[nodiscard]] bool isLoopback() const;
    /// The account that a key for this endpoint is stored under: a key goes only where it was saved for.
    [[nodiscard]] QString account() const;

    bool operator==(const Endpoint &) const = default;

private:
    explicit Endpoint(QUrl baseAddress);

    QUrl m_baseAddress;
};

/// Says what is wrong with an address, for the user.
[[nodiscard]] QString description(Endpoint::Error error);

} // namespace Varlo
