// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <QByteArray>
#include <QList>

namespace Varlo {

/// One file to put into an archive, and what to say about it against the truth.
struct ZipContent {
    QByteArray name;
    QByteArray data;
    quint16 method = 8; ///< 8 deflates (not nothing); with any other, the data stands as it is
    std::optional<quint32> claimedSize = std::nullopt; ///< uncompressed
    std::optional<quint32> claimedCompressedSize = std::nullopt;
    std::optional<quint32> claimedOffset = std::nullopt; ///< of the local header
    QByteArray localExtra = {};
    QByteArray directoryExtra = {};
    std::optional<QByteArray> stream = std::nullopt; ///< in place of what the data deflates to
};

/// What stands behind the directory.
struct ZipEnd {
    std::optional<quint16> claimedCount = std::nullopt;
    std::optional<quint32> claimedOffset = std::nullopt; ///< of the directory
    QByteArray comment = {};
};

/// Writes a ZIP archive. Its sizes stand in the directory only, and its checksums are all zero.
[[nodiscard]] QByteArray buildZip(const QList<ZipContent> &contents, const ZipEnd &end = {});

} // namespace Varlo
