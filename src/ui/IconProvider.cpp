// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/IconProvider.h"

#include <QFile>
#include <QPainter>
#include <QSvgRenderer>

namespace Varlo {

using namespace Qt::StringLiterals;

IconProvider::IconProvider()
    : QQuickImageProvider(QQuickImageProvider::Image)
{
}

QImage IconProvider::requestImage(const QString &id, QSize *size, const QSize &requestedSize)
{
    const QString name = id.section(u'/', 0, 0);
    const QString color = id.section(u'/', 1, 1);
    QFile file(u":/varlo/"_s + (color.isEmpty() ? u"drawings/"_s : u"icons/"_s) + name + u".svg"_s);
    if (!file.open(QFile::ReadOnly))
        return {};
    // SVG names a colour without its opacity.
    QSvgRenderer renderer(file.readAll().replace("currentColor", "#" + color.right(6).toLatin1()));
    QImage image(requestedSize.isValid() ? requestedSize : renderer.defaultSize(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    renderer.render(&painter);
    *size = image.size();
    return image;
}

} // namespace Varlo
