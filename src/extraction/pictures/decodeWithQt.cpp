// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "extraction/pictures/decodeWithQt.h"

#include <algorithm>
#include <QColorSpace>
#include <QFile>
#include <QImageReader>

namespace Varlo {

// Qt's own limit refuses good photos. Pictures inside an icon are bounded by this alone.
static constexpr int allocationLimitMiB = 1600;
// Rows that are converted at a time.
static constexpr int stripHeight = 64;

static QByteArray formatName(PictureKind kind)
{
    switch (kind) {
    case PictureKind::GIF:
        return "gif";
    case PictureKind::BMP:
        return "bmp";
    case PictureKind::ICO:
        return "ico";
    case PictureKind::ICNS:
        return "icns";
    default:
        return {};
    }
}

static void addRows(const QImage &image, QImage::Format format, PictureRows &rows)
{
    for (int top = 0; top < image.height(); top += stripHeight) {
        const int height = std::min(stripHeight, image.height() - top);
        const QImage strip = image.copy(0, top, image.width(), height).convertToFormat(format);
        for (int y = 0; y < height; ++y)
            rows.addRow(strip.constScanLine(y));
    }
}

bool decodeWithQt(const FileDescriptor &file, PictureKind kind, PictureRows &rows)
{
    QFile device;
    if (!device.open(file.get(), QIODevice::ReadOnly, QFileDevice::DontCloseHandle) || !device.seek(0))
        return false;
    QImageReader::setAllocationLimit(allocationLimitMiB);
    QImageReader reader(&device, formatName(kind));
    reader.setAutoDetectImageFormat(false);
    const QSize size = reader.size();
    if (!size.isEmpty() && isTooLarge(size.width(), size.height()))
        return false;
    // Qt reads into what it is given, if that fits. Rows that a truncated BMP lacks would be whatever memory held.
    QImage image(size, reader.imageFormat());
    image.fill(Qt::white);
    if (!reader.read(&image))
        return false;
    PictureHeader header { image.size() };
    header.layout = image.hasAlphaChannel() ? PixelLayout::RGBA : PixelLayout::RGB;
    header.colourProfile = image.colorSpace().iccProfile();
    if (!rows.begin(header))
        return false;
    addRows(image, image.hasAlphaChannel() ? QImage::Format_RGBA8888 : QImage::Format_RGB888, rows);
    return true;
}

} // namespace Varlo
