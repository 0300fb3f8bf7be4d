// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/FileDescriptor.h"
#include <array>
#include <fcntl.h>
#include <QFile>
#include <QImage>
#include <QStringList>
#include <QTemporaryFile>

namespace Varlo {

/// The bytes as an open file, somewhere in its middle: a reader has to begin at the start by itself.
inline FileDescriptor openBytes(const QByteArray &bytes)
{
    QTemporaryFile file;
    if (!file.open() || file.write(bytes) != bytes.size() || !file.flush())
        qFatal("no temporary file");
    FileDescriptor descriptor(::open(QFile::encodeName(file.fileName()).constData(), O_RDONLY | O_CLOEXEC));
    ::lseek(descriptor.get(), bytes.size() / 2, SEEK_SET);
    return descriptor;
}

inline QByteArray sample(const QString &name)
{
    QFile file(QStringLiteral(VARLO_SOURCE_DIR "/tests/extraction/pictures/samples/") + name);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("no sample %s", qPrintable(name));
    return file.readAll();
}

/// A colour in a word, or as it is where none of the samples has it. JPEG changes colours a little.
inline QString colourName(QColor colour)
{
    const std::array<std::pair<QColor, const char *>, 7> names { { { Qt::red, "red" }, { Qt::green, "green" },
        { Qt::blue, "blue" }, { Qt::yellow, "yellow" }, { Qt::white, "white" }, { Qt::black, "black" },
        { QColor(128, 128, 128), "grey" } } };
    for (const auto &[known, name] : names) {
        if (std::abs(known.red() - colour.red()) < 24 && std::abs(known.green() - colour.green()) < 24
            && std::abs(known.blue() - colour.blue()) < 24)
            return QString::fromLatin1(name);
    }
    return colour.name();
}

/// "40x24 red green blue yellow": the size and, upper and then lower, left and right, what is in the quarters.
inline QString describe(const QImage &image)
{
    if (image.isNull())
        return QStringLiteral("nothing");
    const int x = image.width() / 4;
    const int y = image.height() / 4;
    QStringList words { QStringLiteral("%1x%2").arg(image.width()).arg(image.height()) };
    for (const QPoint point : { QPoint(x, y), QPoint(image.width() - 1 - x, y), QPoint(x, image.height() - 1 - y),
             QPoint(image.width() - 1 - x, image.height() - 1 - y) })
        words << colourName(image.pixelColor(point));
    return words.join(u' ');
}

} // namespace Varlo
