// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick
import Varlo

/// Lies over the list while files are dragged over the window.
Rectangle {
    radius: 13
    color: "#D1E2EFF2"

    DashedOutline {
        anchors { fill: parent; margins: 11 }
        ink: Theme.accent
        thickness: 2
    }
    Shadow { anchors.fill: pill; radius: 26 }
    Rectangle {
        id: pill
        anchors.centerIn: parent
        width: line.implicitWidth + 42
        height: 52
        radius: 26
        color: Theme.accent
        Row {
            id: line
            x: 18
            anchors.verticalCenter: parent.verticalCenter
            spacing: 12
            Icon { anchors.verticalCenter: parent.verticalCenter; name: "share-2"; size: 22; color: Theme.surface }
            Label {
                anchors.verticalCenter: parent.verticalCenter
                text: qsTr("Drop your files here")
                size: 16
                color: Theme.surface
                font { family: Theme.displayFamily; weight: Font.DemiBold }
            }
        }
    }
}
