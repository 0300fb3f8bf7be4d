// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick
import Varlo

/// Shown around its parent after keyboard use: two pixels of accent outside a gap of two.
Rectangle {
    property real controlRadius: 9
    property color ground: Theme.surface

    anchors.fill: parent
    anchors.margins: -4
    radius: controlRadius + 4
    color: "transparent"
    border { width: 2; color: Theme.accent }

    Rectangle {
        anchors { fill: parent; margins: 2 }
        radius: parent.radius - 2
        color: "transparent"
        border { width: 2; color: parent.ground }
    }
}
