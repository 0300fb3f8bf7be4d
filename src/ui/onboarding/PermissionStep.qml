// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick
import QtQuick.Layouts
import Varlo

/// Asks to be allowed to control Finder, where the system has one.
ColumnLayout {
    id: step

    required property FinderAccess finder
    property bool isNarrow: false
    signal continued

    spacing: 0
    Component.onCompleted: {
        finder.refresh();
        button.forceActiveFocus(Qt.OtherFocusReason);
    }

    StepTitle {
        isNarrow: step.isNarrow
        Layout.topMargin: 0
        text: qsTr("Give Varlo access to Finder")
    }
    StepLine {
        text: qsTr("Give Varlo permission to control Finder, so it can rename your files in any folder.")
    }
    Rectangle {
        Layout.fillWidth: true
        Layout.maximumWidth: Theme.text(560)
        Layout.topMargin: 28
        implicitHeight: Math.max(Theme.text(68), line.implicitHeight + 24)
        radius: 14
        color: Theme.surface
        border { width: 1; color: Theme.line }
        RowLayout {
            id: line
            anchors { fill: parent; leftMargin: 14; rightMargin: 14 }
            spacing: 12
            StepTile { iconName: "folder-check" }
            ColumnLayout {
                spacing: 1
                Label {
                    Layout.fillWidth: true
                    text: qsTr("Control Finder")
                    font.weight: Font.DemiBold
                    wrapMode: Text.Wrap
                }
                Label {
                    Layout.fillWidth: true
                    text: qsTr("Rename files in any folder, instantly.")
                    size: 13
                    color: Theme.ink3
                    wrapMode: Text.Wrap
                }
            }
            GrantedMark { visible: step.finder.isGranted }
            SecondaryButton {
                visible: !step.finder.isGranted
                text: qsTr("Grant access")
                onClicked: step.finder.request()
            }
        }
    }
    SettingsNote {
        Layout.topMargin: 12
        iconName: "info-circle"
        size: 13
        text: qsTr("You can also grant this later in Settings ▸ Folders.")
    }
    PrimaryPillButton {
        id: button
        Layout.topMargin: step.isNarrow ? 28 : 36
        isBig: true
        text: qsTr("Continue")
        onClicked: step.continued()
    }
}
