// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/fileUri.h"
#include <QUrl>

namespace Varlo {

/// The path of a local file's address in the bytes of its name, which need not be UTF-8: QUrl::toLocalFile() would
/// spoil them. Nothing for any other address.
[[nodiscard]] inline std::optional<std::filesystem::path> localPath(const QUrl &url)
{
    return pathOfFileUri(url.toEncoded());
}

/// The address of an absolute path.
[[nodiscard]] inline QUrl localUrl(const std::filesystem::path &path) { return QUrl::fromEncoded(fileUri(path)); }

} // namespace Varlo
