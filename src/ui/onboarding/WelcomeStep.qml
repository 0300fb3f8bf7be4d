// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick
import QtQuick.Layouts
import Varlo

/// What Varlo does.
ColumnLayout {
    id: step

    property bool isNarrow: false
    signal continued

    component Feature: RowLayout {
        property alias iconName: tile.iconName
        property alias text: words.text
        spacing: 12
        StepTile { id: tile; iconName: "" }
        Label {
            id: words
            Layout.fillWidth: true
            size: 15
            font.weight: Font.Medium
            wrapMode: Text.Wrap
        }
    }

    spacing: 0
    Component.onCompleted: button.forceActiveFocus(Qt.OtherFocusReason)

    Image {
        source: "image://icons/varlo"
        sourceSize { width: 88 * Theme.pixelRatio; height: 88 * Theme.pixelRatio }
        Layout.preferredWidth: 88
        Layout.preferredHeight: 88
        Accessible.ignored: true
    }
    StepTitle {
        isNarrow: step.isNarrow
        text: qsTr("Welcome to Varlo")
    }
    StepLine { text: qsTr("Varlo suggests a new name based on what’s in your files.") }
    Feature {
        Layout.topMargin: step.isNarrow ? 20 : 28
        iconName: "sparkles"
        text: qsTr("AI reads your files and names them")
    }
    Feature {
        Layout.topMargin: 12
        iconName: "world"
        text: qsTr("Dutch, Spanish and English")
    }
    PrimaryPillButton {
        id: button
        Layout.topMargin: step.isNarrow ? 28 : 36
        isBig: true
        text: qsTr("Get Started")
        onClicked: step.continued()
    }
}
