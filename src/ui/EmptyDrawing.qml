// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick
import Varlo

/// A document that gets its label, between two loose sheets, which move apart while files are dragged over the window.
Item {
    id: drawing

    property bool isOpen: false
    property real spread: isOpen ? 16 : 0

    implicitWidth: 196
    implicitHeight: 128
    Accessible.ignored: true
    Behavior on spread { NumberAnimation { duration: Theme.base; easing.type: Easing.OutCubic } }

    component Drawing: Image {
        required property string name
        source: "image://icons/" + name
        sourceSize { width: width * Theme.pixelRatio; height: height * Theme.pixelRatio }
        antialiasing: true
        smooth: true
    }
    Drawing { name: "sheet-text"; x: 17 - drawing.spread; y: 28; width: 66; height: 84; rotation: -12 }
    Drawing { name: "sheet-picture"; x: 113 + drawing.spread; y: 28; width: 66; height: 84; rotation: 12 }
    Drawing { name: "document"; x: 50; width: 108; height: 128 }
}
