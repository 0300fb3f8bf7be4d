// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick
import Varlo

/// Untidy names that become good ones, step by step.
Canvas {
    id: picture

    required property string step
    readonly property var named: ({ welcome: [1, 2], permission: [0, 1, 2], ready: [0, 1, 2, 3] })[step]

    onWidthChanged: requestPaint()
    onHeightChanged: requestPaint()
    onPaint: {
        // From corner to corner at 20 degrees from the upright, which a rectangle's own gradient cannot do.
        const angle = 20 / 180 * Math.PI;
        const half = (width * Math.sin(angle) + height * Math.cos(angle)) / 2;
        const x = half * Math.sin(angle);
        const y = half * Math.cos(angle);
        const c = getContext("2d");
        c.reset();
        const stage = c.createLinearGradient(width / 2 - x, height / 2 - y, width / 2 + x, height / 2 + y);
        stage.addColorStop(0, "#12697F");
        stage.addColorStop(.6, "#0A5063");
        stage.addColorStop(1, "#083F4E");
        c.fillStyle = stage;
        c.roundedRect(0, 0, width, height, 18, 18);
        c.fill();
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
