// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Message.h"
#include <QString>
#include <variant>

namespace Varlo {

/// The endpoint refused; the message is the endpoint's own.
struct ApiError {
    QString message;
    bool isKeyRefused = false; ///< the key is unknown, or may not do this

    bool operator==(const ApiError &) const = default;
};
/// The call did not get through, or its answer could not be decoded; the description is the lower layer's own.
struct TransportError {
    Message description;

    bool operator==(const TransportError &) const = default;
};
struct MissingAPIKey {
    bool operator==(const MissingAPIKey &) const = default;
};
/// The keyring may hold the key, but it is locked.
struct LockedAPIKey {
    bool operator==(const LockedAPIKey &) const = default;
};
/// The key holds characters that no request can carry.
struct UnusableAPIKey {
    bool operator==(const UnusableAPIKey &) const = default;
};
struct InvalidResponse {
    bool operator==(const InvalidResponse &) const = default;
};
struct NoReadableContent {
    bool operator==(const NoReadableContent &) const = default;
};
/// Why no name came back.
using NameSuggestionError = std::variant<ApiError, TransportError, MissingAPIKey, LockedAPIKey, UnusableAPIKey,
    InvalidResponse, NoReadableContent>;

/// The words shown to the user.
[[nodiscard]] Message description(const NameSuggestionError &error);
/// Whether the key is at fault, so that another one may bring the name.
[[nodiscard]] bool isForWantOfKey(const NameSuggestionError &error);

} // namespace Varlo
