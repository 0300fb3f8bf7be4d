// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>
#include <QQuickItem>

namespace Varlo {

/// Shows a picture that is in memory as large as it fits, in its own proportions and never enlarged.
class PreviewPicture : public QQuickItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QVariant picture READ picture WRITE setPicture NOTIFY pictureChanged)
public:
    explicit PreviewPicture(QQuickItem *parent = nullptr);

    [[nodiscard]] QVariant picture() const { return m_picture; } ///< a QImage
    void setPicture(const QVariant &picture);

signals:
    void pictureChanged();

protected:
    QSGNode *updatePaintNode(QSGNode *oldNode, UpdatePaintNodeData *data) override;
    void geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry) override;

private:
    [[nodiscard]] QRectF place() const;

    QImage m_picture;
    bool m_isNew = false; ///< not drawn yet
};

} // namespace Varlo
