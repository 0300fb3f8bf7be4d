// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick
import QtQuick.Layouts
import Varlo

/// The last word before the main window.
ColumnLayout {
    id: step

    property bool isNarrow: false
    signal continued

    spacing: 0
    Component.onCompleted: button.forceActiveFocus(Qt.OtherFocusReason)

    Rectangle {
        implicitWidth: 72
        implicitHeight: 72
        radius: 36
        color: Theme.okTint
        Icon { anchors.centerIn: parent; name: "check"; size: 40; color: Theme.ok }
    }
    StepTitle {
        isNarrow: step.isNarrow
        text: qsTr("Varlo is ready")
    }
    StepLine { text: qsTr("Add your files and Varlo gets to work.") }
    PrimaryPillButton {
        id: button
        Layout.topMargin: step.isNarrow ? 28 : 36
        isBig: true
        text: qsTr("Start renaming")
        onClicked: step.continued()
    }
}
