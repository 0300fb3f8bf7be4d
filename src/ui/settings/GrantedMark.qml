// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick
import Varlo

/// Says with a check mark that something holds.
Row {
    id: mark

    property string text: qsTr("Granted")
    property int size: 14

    spacing: 7
    Icon {
        anchors.verticalCenter: parent.verticalCenter
        name: "circle-check-filled"
        size: mark.size + 5
        color: Theme.ok
    }
    Label {
        anchors.verticalCenter: parent.verticalCenter
        text: mark.text
        size: mark.size
        font.weight: Font.DemiBold
        color: Theme.ok
    }
}
