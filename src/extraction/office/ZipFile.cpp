// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#define ZLIB_CONST // else zlib asks for input that it may write to
#include "extraction/office/ZipFile.h"

#include "extraction/office/decodeUtf8.h"
#include <algorithm>
#include <QtEndian>
#include <zlib.h>

namespace Varlo::ZipFile {

constexpr qint64 endRecordSize = 22; // without its comment
constexpr qint64 longestComment = 65535;
constexpr qint64 directoryHeaderSize = 46; // without name, extra field and comment
constexpr qint64 localHeaderSize = 30; // without name and extra field
constexpr char endRecordSignature[] = "PK\5\6";
constexpr qint64 directoryHeaderSignature = 0x02014b50;
constexpr qint64 localHeaderSignature = 0x04034b50;
constexpr qint64 stored = 0;
constexpr qint64 deflated = 8;

// Widened at once, so that no sum of fields can overflow. The caller has made sure that the field is there.
static qint64 number16(QByteArrayView bytes, qint64 offset)
{
    return qFromLittleEndian<quint16>(bytes.sliced(offset, 2).data());
}

static qint64 number32(QByteArrayView bytes, qint64 offset)
{
    return qFromLittleEndian<quint32>(bytes.sliced(offset, 4).data());
}

static bool hasHeader(QByteArrayView bytes, qint64 offset, qint64 size, qint64 signature)
{
    return offset + size <= bytes.size() && number32(bytes, offset) == signature;
}

/// Where the last end record begins that is there in full but for its comment; absent without one.
static std::optional<qint64> findEndRecord(QByteArrayView bytes)
{
    if (bytes.size() < endRecordSize)
        return std::nullopt;
    const QByteArrayView tail = bytes.last(std::min(bytes.size(), endRecordSize + longestComment));
    const qint64 found = tail.lastIndexOf(QByteArrayView(endRecordSignature), tail.size() - endRecordSize);
    if (found < 0)
        return std::nullopt;
    return bytes.size() - tail.size() + found;
}

std::vector<Entry> entries(QByteArrayView bytes)
{
    std::vector<Entry> entries;
    const std::optional<qint64> endRecord = findEndRecord(bytes);
    if (!endRecord)
        return entries;
    qint64 offset = number32(bytes, *endRecord + 16);
    for (qint64 remaining = number16(bytes, *endRecord + 10); remaining > 0; --remaining) {
        if (!hasHeader(bytes, offset, directoryHeaderSize, directoryHeaderSignature))
            break;
        const qint64 nameSize = number16(bytes, offset + 28);
        const qint64 nameEnd = offset + directoryHeaderSize + nameSize;
        if (nameEnd > bytes.size())
            break;
        entries.push_back({
            .name = decodeUtf8(bytes.sliced(offset + directoryHeaderSize, nameSize)),
            .method = number16(bytes, offset + 10),
            .compressedSize = number32(bytes, offset + 20),
            .uncompressedSize = number32(bytes, offset + 24),
            .localHeaderOffset = number32(bytes, offset + 42),
        });
        const qint64 extraSize = number16(bytes, offset + 30);
        const qint64 commentSize = number16(bytes, offset + 32);
        offset = nameEnd + extraSize + commentSize;
    }
    return entries;
}

/// The first `size` bytes of a raw deflate stream (RFC 1951); absent when it has fewer, or is damaged before.
static std::optional<QByteArray> inflate(QByteArrayView bytes, qint64 size)
{
    QByteArray inflated(size, Qt::Uninitialized);
    z_stream stream {};
    stream.next_in = reinterpret_cast<const Bytef *>(bytes.data());
    stream.avail_in = static_cast<uInt>(bytes.size());
    stream.next_out = reinterpret_cast<Bytef *>(inflated.data());
    stream.avail_out = static_cast<uInt>(size);
    // Every failure, that of the first call too, shows as output that is missing.
    inflateInit2(&stream, -MAX_WBITS);
    ::inflate(&stream, Z_FINISH);
    inflateEnd(&stream);
    if (stream.avail_out > 0)
        return std::nullopt;
    return inflated;
}

std::optional<QByteArray> read(const Entry &entry, QByteArrayView bytes, qint64 maxBytes)
{
    const qint64 header = entry.localHeaderOffset;
    if (!hasHeader(bytes, header, localHeaderSize, localHeaderSignature))
        return std::nullopt;
    // The lengths here may differ from those in the central directory, and these say where the data is.
    const qint64 start = header + localHeaderSize + number16(bytes, header + 26) + number16(bytes, header + 28);
    if (start + entry.compressedSize > bytes.size())
        return std::nullopt;
    const QByteArrayView data = bytes.sliced(start, entry.compressedSize);
    if (entry.method == stored)
        return data.first(std::min(data.size(), maxBytes)).toByteArray();
    if (entry.method != deflated)
        return std::nullopt;
    const qint64 size = std::min(entry.uncompressedSize, maxBytes);
    if (size == 0 || data.isEmpty())
        return QByteArray();
    return inflate(data, size);
}

} // namespace Varlo::ZipFile
