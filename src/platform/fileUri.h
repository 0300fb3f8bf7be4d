// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <optional>
#include <QByteArray>

namespace Varlo {

/// The path as a "file" address (RFC 8089): every byte that is not a letter, a digit or one of "-._~/" is written in
/// hexadecimal, so that a name of any bytes comes through.
[[nodiscard]] inline QByteArray fileUri(const std::filesystem::path &path)
{
    return "file://" + QByteArray::fromStdString(path.native()).toPercentEncoding("/");
}

/// The path that an address of a file on this computer names; nothing for any other address. Not through QUrl, whose
/// ways to a path all assume UTF-8.
[[nodiscard]] inline std::optional<std::filesystem::path> pathOfFileUri(const QByteArray &uri)
{
    constexpr qsizetype schemeLength = 5;
    if (uri.first(std::min(schemeLength, uri.size())).toLower() != "file:")
        return {};
    QByteArray rest = uri.sliced(schemeLength);
    for (const char *host : { "//localhost/", "///" }) {
        if (rest.startsWith(host))
            rest = rest.sliced(static_cast<qsizetype>(qstrlen(host)) - 1);
    }
    if (!rest.startsWith('/') || rest.startsWith("//") || rest.contains('?') || rest.contains('#'))
        return {};
    const QByteArray path = QByteArray::fromPercentEncoding(rest);
    if (path.contains('\0'))
        return {};
    return std::filesystem::path(path.toStdString());
}

} // namespace Varlo
