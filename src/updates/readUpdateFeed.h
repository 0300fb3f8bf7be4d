// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Result.h"
#include <QByteArray>
#include <QUrl>
#include <QVersionNumber>

namespace Varlo {

/// A version of Varlo that its makers have published.
struct Release {
    QVersionNumber version;
    QUrl page; ///< over https; tells what is new and how to get it
};
enum class FeedError {
    NotSigned, ///< not by the holder of the key, or not as it stands
    NotUnderstood, ///< signed, and not of the form described in docs/update-feed.md
};

constexpr qsizetype longestUpdateFeed = 64 * 1024;

/// Reads a feed: one line with an Ed25519 signature (RFC 8032) in base64, and behind its line feed the JSON object
/// that was signed, byte for byte. The public key has 32 bytes. Pure.
[[nodiscard]] Result<Release, FeedError> readUpdateFeed(const QByteArray &feed, const QByteArray &publicKey);

} // namespace Varlo
