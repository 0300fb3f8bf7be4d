// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick
import Varlo

/// ".pdf" in type of even widths.
Rectangle {
    id: chip

    required property string text
    property bool isComing: false

    implicitWidth: label.implicitWidth + 16
    implicitHeight: Theme.text(24)
    radius: 6
    color: isComing ? "transparent" : Theme.fill
    border { width: isComing ? 1 : 0; color: Theme.lineStrong }

    Label {
        id: label
        anchors.centerIn: parent
        text: chip.text
        size: 12
        font.family: Theme.codeFamily
        font.weight: Font.Medium
        color: chip.isComing ? Theme.ink3 : "#3E3A34"
    }
}
