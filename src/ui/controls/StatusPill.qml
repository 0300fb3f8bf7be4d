// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick
import Varlo

/// A status as a glyph and a word. `status` is the raw value of a file's status.
Rectangle {
    id: pill

    required property string status
    required property string label
    readonly property var looks: ({
            pending: { icon: "circle-dashed", ink: Theme.ink2, fill: Theme.fill },
            processing: { icon: "loader-2", ink: Theme.accentInk, fill: Theme.accentTint },
            suggested: { icon: "sparkles", ink: Theme.accentInk, fill: Theme.accentTint },
            renamed: { icon: "check", ink: Theme.ok, fill: Theme.okTint },
            alreadyRenamed: { icon: "checks", ink: Theme.ok, fill: "transparent", line: Theme.okLine },
            noTextFound: { icon: "file-unknown", ink: Theme.warn, fill: Theme.warnTint },
            notSupportedYet: { icon: "ban", ink: Theme.ink2, fill: "transparent", line: Theme.lineStrong },
            failed: { icon: "alert-triangle", ink: Theme.bad, fill: Theme.badTint }
        })
    readonly property var look: looks[status] ?? looks.pending

    implicitWidth: row.implicitWidth + 17
    implicitHeight: Theme.text(26)
    radius: height / 2
    color: look.fill
    border { width: look.line ? 1 : 0; color: look.line ?? "transparent" }
    Accessible.role: Accessible.StaticText
    Accessible.name: label

    Row {
        id: row
        x: 7
        anchors.verticalCenter: parent.verticalCenter
        spacing: 5
        Icon {
            id: sign
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
        Label {
            anchors.verticalCenter: parent.verticalCenter
            text: pill.label
            size: 12
            font.weight: Font.Medium
            color: pill.look.ink
            Accessible.ignored: true
        }
    }
}
