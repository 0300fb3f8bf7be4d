// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick
import Varlo

/// A status as a glyph and a word. `status` is the raw value of a file's status.
Rectangle {
    id: pill

    required property string status
    required property string label
    readonly property var look: Theme.statusLooks[status] ?? Theme.statusLooks.pending

    implicitWidth: words.implicitWidth + 37
    implicitHeight: Theme.text(26)
    radius: height / 2
    color: look.fill
    border { width: look.line ? 1 : 0; color: look.line ?? "transparent" }
    Accessible.role: Accessible.StaticText
    Accessible.name: label

    Icon {
        id: sign
        x: 7
        anchors.verticalCenter: parent.verticalCenter
        name: pill.look.icon
        size: 15
        color: pill.look.ink
        RotationAnimation on rotation {
            running: pill.status === "processing" && pill.visible && Theme.isAnimated
            loops: Animation.Infinite
            from: 0
            to: 360
            duration: Theme.spin
            onStopped: sign.rotation = 0
        }
    }
    Words {
        id: words
        x: 27
        anchors.verticalCenter: parent.verticalCenter
        text: pill.label
        size: 12
        font.weight: Font.Medium
        color: pill.look.ink
    }
}
