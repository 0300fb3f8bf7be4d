// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick
import Varlo

/// Untidy names that become good ones, step by step.
Rectangle {
    id: picture

    required property string step
    readonly property var named: ({ welcome: [1, 2], permission: [0, 1, 2], ready: [0, 1, 2, 3] })[step]

    radius: 18
    gradient: Gradient {
        GradientStop { position: 0; color: "#12697F" }
        GradientStop { position: .6; color: "#0A5063" }
        GradientStop { position: 1; color: "#083F4E" }
    }
    Accessible.ignored: true

    Repeater {
        model: [
            //: File names in a picture, before and after; about as long as these
            { kind: "photo", from: "IMG_4032.HEIC", to: qsTr("2024-08-17 - Harbour sunset.HEIC") },
            { kind: "doc.text", from: "scan_0041.pdf", to: qsTr("2025-03-14 - Acme - 174.24 EUR.pdf") },
            { kind: "doc.richtext", from: qsTr("untitled document (7).docx"),
                to: qsTr("2025-04-08 - Spring minutes.docx") },
            { kind: "doc.text", from: qsTr("contract SIGNED (2).pdf"),
                to: qsTr("2025-01-31 - Lease - Acme x Korvan.pdf") }
        ]
        NameCard {
            required property var modelData
            required property int index
            x: index % 2 === 0 ? 28 : picture.width - width - 28
            y: (picture.height - 358) / 2 - 15 + index * 98
            kind: modelData.kind
            oldName: modelData.from
            newName: modelData.to
            isNamed: picture.named.includes(index)
            isDone: picture.step === "ready"
            delay: index * 60
        }
    }
}
