// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick
import Varlo

/// The empty window: where to drop files, and two buttons for those who rather choose them.
FocusScope {
    id: zone

    required property var contentView
    readonly property bool isTargeted: contentView.isDropTargeted

    focus: true
    Accessible.role: Accessible.Grouping
    Accessible.name: title.text + ". " + line.text

    DashedOutline {
        anchors { fill: parent; margins: 12 }
        ink: zone.isTargeted ? Theme.accent : Theme.lineStrong
        thickness: zone.isTargeted ? 2 : 1.5
    }

    Column {
        anchors.centerIn: parent
        width: Math.min(parent.width - 48, 560)

        EmptyDrawing { anchors.horizontalCenter: parent.horizontalCenter; isOpen: zone.isTargeted }
        Label {
            id: title
            width: parent.width
            topPadding: 20
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.Wrap
            text: qsTr("Drop your files here")
            size: 24
            font { family: Theme.displayFamily; weight: Font.DemiBold; letterSpacing: -.2 }
        }
        Label {
            id: line
            width: parent.width
            topPadding: 6
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.Wrap
            text: qsTr("Varlo reads your files and suggests a new name based on their contents")
            color: Theme.ink2
        }
        Item { width: 1; height: 24 }
        Flow {
            anchors.horizontalCenter: parent.horizontalCenter
            width: Math.min(parent.width, add.implicitWidth + select.implicitWidth + 10)
            spacing: 10
            PrimaryButton {
                id: add
                focus: true
                text: qsTr("Add Files…")
                iconName: "plus"
                onClicked: zone.contentView.chooseFiles()
            }
            SecondaryButton {
                id: select
                text: qsTr("Select Folder…")
                iconName: "folder"
                onClicked: zone.contentView.chooseFolder()
            }
        }
        Item { width: 1; height: 20 }
        SupportedFormatsLine {
            anchors.horizontalCenter: parent.horizontalCenter
            count: zone.contentView.uiState.supportedCount
            onViewAllRequested: zone.contentView.uiState.showingFormats = true
        }
    }
}
