// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick
import Varlo

/// A dashed rounded rectangle.
Canvas {
    id: outline

    property color ink: Theme.lineStrong
    property real thickness: 1.5

    onInkChanged: requestPaint()
    onThicknessChanged: requestPaint()
    onWidthChanged: requestPaint()
    onHeightChanged: requestPaint()
    Accessible.ignored: true
    onPaint: {
        const c = getContext("2d");
        c.reset();
        c.strokeStyle = ink;
        c.lineWidth = thickness;
        c.setLineDash([6 / thickness, 6 / thickness]); // in units of the line's width
        const inset = thickness / 2;
        c.beginPath();
        c.roundedRect(inset, inset, width - thickness, height - thickness, 10, 10);
        c.stroke();
    }
}
