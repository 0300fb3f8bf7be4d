// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick
import Varlo

/// How many types of file can be read, and the way to the list of them.
Row {
    id: line

    required property int count
    property color ink: Theme.ink3
    property color linkInk: Theme.accent
    signal viewAllRequested

    spacing: 5
    Label {
        anchors.verticalCenter: parent.verticalCenter
        text: qsTr("Varlo supports %1+ file types").arg(line.count)
        size: 13
        color: line.ink
    }
    Words { anchors.verticalCenter: parent.verticalCenter; text: "·"; size: 13; color: line.ink }
    LinkButton {
        anchors.verticalCenter: parent.verticalCenter
        text: qsTr("View all")
        ink: line.linkInk
        onClicked: line.viewAllRequested()
    }
}
