// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/PreviewPicture.h"

#include <algorithm>
#include <QQuickWindow>
#include <QSGImageNode>

namespace Varlo {

PreviewPicture::PreviewPicture(QQuickItem *parent)
    : QQuickItem(parent)
{
    setFlag(ItemHasContents);
}

void PreviewPicture::setPicture(const QVariant &picture)
{
    m_picture = picture.value<QImage>();
    m_isNew = true;
    update();
    emit pictureChanged();
}

void PreviewPicture::geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry)
{
    QQuickItem::geometryChange(newGeometry, oldGeometry);
    update();
}

QRectF PreviewPicture::place() const
{
    const QSizeF natural = QSizeF(m_picture.size()) / window()->effectiveDevicePixelRatio();
    const double scale = std::min({ 1.0, width() / natural.width(), height() / natural.height() });
    QRectF place({}, natural * scale);
    place.moveCenter(boundingRect().center());
    return place;
}

QSGNode *PreviewPicture::updatePaintNode(QSGNode *oldNode, UpdatePaintNodeData *)
{
    if (m_picture.isNull()) {
        delete oldNode;
        return nullptr;
    }
    auto *node = static_cast<QSGImageNode *>(oldNode);
    if (!node || m_isNew) {
        delete node;
        node = window()->createImageNode();
        node->setTexture(window()->createTextureFromImage(m_picture));
        node->setOwnsTexture(true);
        node->setFiltering(QSGTexture::Linear);
        m_isNew = false;
    }
    node->setRect(place());
    return node;
}

} // namespace Varlo
