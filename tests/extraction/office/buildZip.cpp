// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "extraction/office/buildZip.h"

#include <QtEndian>

namespace Varlo {

template <typename Number> static QByteArray littleEndian(Number number)
{
    QByteArray bytes(sizeof(Number), '\0');
    qToLittleEndian(number, bytes.data());
    return bytes;
}

static QByteArray number16(qsizetype number) { return littleEndian(static_cast<quint16>(number)); }

static QByteArray number32(qsizetype number) { return littleEndian(static_cast<quint32>(number)); }

static QByteArray zeros(qsizetype count) { return QByteArray(count, '\0'); }

static QByteArray streamOf(const ZipContent &content)
{
    if (content.stream)
        return *content.stream;
    if (content.method != 8)
        return content.data;
    // Without the length that Qt puts in front, and zlib's header and checksum.
    return qCompress(content.data).sliced(6).chopped(4);
}

QByteArray buildZip(const QList<ZipContent> &contents, const ZipEnd &end)
{
    QByteArray archive;
    QByteArray directory;
    for (const ZipContent &content : contents) {
        const qsizetype offset = archive.size();
        const QByteArray stream = streamOf(content);
        archive += "PK\3\4" + zeros(22) + number16(content.name.size()) + number16(content.localExtra.size())
            + content.name + content.localExtra + stream;
        directory += "PK\1\2" + zeros(6) + number16(content.method) + zeros(8)
            + number32(content.claimedCompressedSize.value_or(stream.size()))
            + number32(content.claimedSize.value_or(content.data.size())) + number16(content.name.size())
            + number16(content.directoryExtra.size()) + zeros(10) + number32(content.claimedOffset.value_or(offset))
            + content.name + content.directoryExtra;
    }
    const qsizetype directoryOffset = archive.size();
    return archive + directory + "PK\5\6" + zeros(6) + number16(end.claimedCount.value_or(contents.size()))
        + number32(directory.size()) + number32(end.claimedOffset.value_or(directoryOffset))
        + number16(end.comment.size()) + end.comment;
}

} // namespace Varlo
