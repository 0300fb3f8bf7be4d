// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick
import Varlo

/// Two pixels of accent outside a gap of two.
Rectangle {
    id: lines

    required property FocusRing ring

    anchors.fill: parent
    anchors.margins: -4
    radius: ring.controlRadius + 4
    color: "transparent"
    border { width: 2; color: Theme.accent }

    Rectangle {
        anchors { fill: parent; margins: 2 }
        radius: parent.radius - 2
        color: "transparent"
        border { width: 2; color: lines.ring.ground }
    }
}
