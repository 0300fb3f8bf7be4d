// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <optional>
#include <QByteArray>
#include <QUrl>

namespace Varlo {

/// The path of a local file's address in the bytes of its name, which need not be UTF-8: QUrl::toLocalFile() would
/// spoil them. Nothing for any other address.
[[nodiscard]] inline std::optional<std::filesystem::path> localPath(const QUrl &url)
{
    if (!url.isLocalFile())
        return {};
    const QByteArray path = QByteArray::fromPercentEncoding(url.path(QUrl::FullyEncoded).toLatin1());
    return std::filesystem::path(path.toStdString());
}

/// The address of an absolute path.
[[nodiscard]] inline QUrl localUrl(const std::filesystem::path &path)
{
    const QByteArray bytes = QByteArray::fromStdString(path.native());
    return QUrl::fromEncoded("file://" + bytes.toPercentEncoding("/"));
}

} // namespace Varlo
