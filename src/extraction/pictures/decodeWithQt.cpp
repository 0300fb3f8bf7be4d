// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "extraction/pictures/decodeWithQt.h"

#include <algorithm>
#include <QColorSpace>
#include <QFile>
#include <QImageIOHandler>
#include <QImageIOPlugin>
#include <QImageReader>
#include <QLibraryInfo>
#include <QPluginLoader>

namespace Varlo {

using namespace Qt::StringLiterals;

// Qt's own limit refuses good photos. Pictures inside an icon are bounded by this alone.
static constexpr int allocationLimitMiB = 1600;
// Rows that are converted at a time.
static constexpr int stripHeight = 64;

// The reader of BMP is in the library itself.
static QByteArray formatName(PictureKind kind)
{
    switch (kind) {
    case PictureKind::GIF:
        return "gif";
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

static QImageIOPlugin *pluginFor(const QByteArray &format)
{
    const QString name = u"/imageformats/libq"_s + QLatin1StringView(format) + u".so"_s;
    QPluginLoader loader(QLibraryInfo::path(QLibraryInfo::PluginsPath) + name);
    return qobject_cast<QImageIOPlugin *>(loader.instance());
}

/// Qt reads into what it is given, if that fits. Rows that a truncated BMP lacks would be whatever memory held. Null
/// where the size is too large.
static std::optional<QImage> blank(QSize size, QImage::Format format)
{
    if (!size.isEmpty() && isTooLarge(size.width(), size.height()))
        return std::nullopt;
    QImage image(size, format);
    image.fill(Qt::white);
    return image;
}

static std::optional<QImage> readBMP(QIODevice &device)
{
    QImageReader reader(&device, "bmp");
    reader.setAutoDetectImageFormat(false);
    std::optional<QImage> image = blank(reader.size(), reader.imageFormat());
    return image && reader.read(&*image) ? image : std::nullopt;
}

static std::optional<QImage> readByPlugin(QIODevice &device, const QByteArray &format)
{
    QImageIOPlugin *const plugin = pluginFor(format);
    const std::unique_ptr<QImageIOHandler> handler(plugin ? plugin->create(&device, format) : nullptr);
    if (!handler)
        return std::nullopt;
    std::optional<QImage> image = blank(handler->option(QImageIOHandler::Size).toSize(),
        static_cast<QImage::Format>(handler->option(QImageIOHandler::ImageFormat).toInt()));
    return image && handler->read(&*image) ? image : std::nullopt;
}

static std::optional<QImage> read(QIODevice &device, PictureKind kind)
{
    return kind == PictureKind::BMP ? readBMP(device) : readByPlugin(device, formatName(kind));
}

QStringList loadQtFormats()
{
    QStringList missing;
    for (const PictureKind kind : { PictureKind::GIF, PictureKind::ICO, PictureKind::ICNS }) {
        if (!pluginFor(formatName(kind)))
            missing << QString::fromLatin1(formatName(kind));
    }
    return missing;
}

bool decodeWithQt(const FileDescriptor &file, PictureKind kind, PictureRows &rows)
{
    QFile device;
    if (!device.open(file.get(), QIODevice::ReadOnly, QFileDevice::DontCloseHandle) || !device.seek(0))
        return false;
    QImageReader::setAllocationLimit(allocationLimitMiB);
    const std::optional<QImage> decoded = read(device, kind);
    if (!decoded)
        return false;
    const QImage &image = *decoded;
    PictureHeader header { image.size() };
    header.layout = image.hasAlphaChannel() ? PixelLayout::RGBA : PixelLayout::RGB;
    header.colourProfile = image.colorSpace().iccProfile();
    if (!rows.begin(header))
        return false;
    addRows(image, image.hasAlphaChannel() ? QImage::Format_RGBA8888 : QImage::Format_RGB888, rows);
    return true;
}

} // namespace Varlo
