// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "extraction/jpegSize.h"

#include <QtEndian>

namespace Varlo {

namespace {
// ITU-T T.81, table B.1
constexpr quint8 markerPrefix = 0xFF;
constexpr quint8 startOfImage = 0xD8;
constexpr quint8 startOfScan = 0xDA;
} // namespace

/// SOF0 to SOF15 without the three codes among them that are other markers: DHT, JPG and DAC.
static bool isStartOfFrame(quint8 marker)
{
    return marker >= 0xC0 && marker <= 0xCF && marker != 0xC4 && marker != 0xC8 && marker != 0xCC;
}

std::optional<QSize> jpegSize(QByteArrayView bytes)
{
    const auto byteAt = [&](qsizetype offset) { return static_cast<quint8>(bytes[offset]); };
    const auto wordAt = [&](qsizetype offset) { return qFromBigEndian<quint16>(bytes.data() + offset); };
    if (bytes.size() < 4 || byteAt(0) != markerPrefix || byteAt(1) != startOfImage)
        return {};
    qsizetype offset = 2;
    while (bytes.size() - offset >= 4 && byteAt(offset) == markerPrefix) {
        const quint8 marker = byteAt(offset + 1);
        const quint16 length = wordAt(offset + 2); // its own two bytes included
        if (marker == startOfScan || length < 2)
            return {};
        if (isStartOfFrame(marker)) {
            constexpr qsizetype heightAt = 5;
            constexpr qsizetype widthAt = 7;
            if (bytes.size() - offset < widthAt + 2)
                return {};
            const QSize size(wordAt(offset + widthAt), wordAt(offset + heightAt));
            return size.isEmpty() ? std::nullopt : std::optional(size);
        }
        offset += 2 + length;
    }
    return {};
}

} // namespace Varlo
