// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick
import Varlo

/// A keyword of a file.
Rectangle {
    id: chip

    required property string text
    property bool isQuiet: false

    implicitWidth: label.implicitWidth + 12
    implicitHeight: Theme.text(18)
    radius: 5
    color: isQuiet ? Theme.fill : Theme.accentTint

    Label {
        id: label
        anchors.centerIn: parent
        text: chip.text
        size: 11
        font.weight: Font.Medium
        color: chip.isQuiet ? Theme.ink2 : Theme.accentInk
    }
}
