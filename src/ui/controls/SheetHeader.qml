// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick
import QtQuick.Layouts
import Varlo

/// The title of a sheet, what stands beside it, and the x that closes it.
RowLayout {
    id: header

    required property string title
    property alias beside: beside.data
    signal closeRequested

    spacing: 12
    Label {
        Layout.leftMargin: 24
        Layout.topMargin: 16
        Layout.bottomMargin: 12
        Layout.minimumHeight: Theme.text(30)
        text: header.title
        size: 18
        font { family: Theme.displayFamily; weight: Font.DemiBold; letterSpacing: -.1 }
    }
    RowLayout { id: beside; Layout.fillWidth: true; Layout.topMargin: 16; Layout.bottomMargin: 12 }
    ChromeIconButton {
        Layout.rightMargin: 14
        Layout.topMargin: 4 // and as much again below than above, as with the title
        systemName: "x"
        isSmall: true
        iconSize: 18
        help: qsTr("Close")
        ground: Theme.surface
        onClicked: header.closeRequested()
    }
}
