// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick

/// A soft shadow below a rounded rectangle of its own size, drawn once as a few outlines; no live effect.
Item {
    id: shadow

    property real radius: 14
    property int level: 2
    readonly property var layers: level === 3
        ? [[2, 1, .05], [4, 3, .04], [8, 6, .03], [14, 10, .025], [22, 15, .02], [32, 21, .015], [44, 28, .01]]
        : [[1, 1, .05], [2, 2, .035], [5, 4, .025], [9, 6, .018], [14, 9, .012], [20, 12, .008]]

    Repeater {
        model: shadow.layers
        Rectangle {
            required property var modelData
            x: -modelData[0]
            y: -modelData[0] + modelData[1]
            width: shadow.width + 2 * modelData[0]
            height: shadow.height + 2 * modelData[0]
            radius: shadow.radius + modelData[0]
            color: Qt.rgba(52 / 255, 44 / 255, 32 / 255, modelData[2])
        }
    }
}
