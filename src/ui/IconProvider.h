// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QQuickImageProvider>

namespace Varlo {

/// Draws the icons: "image://icons/check/0e6377" is the icon "check" in that colour (rrggbb or aarrggbb), and a
/// drawing is named without a colour.
class IconProvider final : public QQuickImageProvider {
public:
    IconProvider();
    QImage requestImage(const QString &id, QSize *size, const QSize &requestedSize) override;
};

} // namespace Varlo
