// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <QByteArray>
#include <QString>
#include <vector>

/// Reads ZIP archives (PKWARE's APPNOTE) that lie in memory whole, as far as office documents need it: stored and
/// deflated entries, no encryption, no parts on other disks, no ZIP64. The sizes in the central directory are trusted;
/// checksums are not looked at. Nothing here fails: what cannot be read is left out or absent. Pure; safe on any
/// thread.
namespace Varlo::ZipFile {

/// One file in the archive, as the central directory has it. Sizes and offsets are in bytes, and wide enough for sums.
struct Entry {
    QString name; ///< U+FFFD in place of what is not UTF-8
    qint64 method = 0; ///< 0: stored, 8: deflated
    qint64 compressedSize = 0;
    qint64 uncompressedSize = 0;
    qint64 localHeaderOffset = 0;
};

/// The central directory in its own order. Empty when `bytes` are no archive; where the directory breaks off, what
/// stands before.
[[nodiscard]] std::vector<Entry> entries(QByteArrayView bytes);

/// The content of one of the archive's entries(), cut to its first `maxBytes` bytes (not negative). Absent when the
/// archive does not hold it in full, when it is compressed in another way, or when it inflates to fewer bytes than the
/// directory says.
[[nodiscard]] std::optional<QByteArray> read(const Entry &entry, QByteArrayView bytes, qint64 maxBytes);

} // namespace Varlo::ZipFile
