// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick
import QtQuick.Layouts
import Varlo

/// Says which folder is watched, and pauses the watching.
Rectangle {
    id: strip

    required property var contentView
    readonly property string folderName: contentView.watchedFolder?.folderName ?? ""
    readonly property bool isPaused: contentView.watcher.isPaused

    implicitHeight: Theme.text(40)
    radius: 11
    color: Theme.fill
    Accessible.role: Accessible.Grouping
    Accessible.name: Format.joined([folderName, qsTr("is being watched"), state.text], " ")

    RowLayout {
        anchors { fill: parent; leftMargin: 13; rightMargin: 5 }
        spacing: 8
        Icon { name: "folder" }
        Words {
            Layout.maximumWidth: Math.ceil(implicitWidth) // a layout rounds down, which would shorten it
            Layout.fillWidth: true
            text: strip.folderName
            size: 13
            font.weight: Font.DemiBold
            elide: Text.ElideMiddle
        }
        Words {
            Layout.leftMargin: -3
            text: qsTr("is being watched")
            size: 13
            color: Theme.ink2
        }
        Rectangle {
            Layout.leftMargin: 8
            width: 8
            height: 8
            radius: 4
            color: strip.isPaused ? Theme.warnDot : Theme.okDot
        }
        Words {
            id: state
            Layout.leftMargin: -2
            text: strip.isPaused ? qsTr("Paused") : qsTr("Active")
            size: 13
            font.weight: Font.Medium
        }
        Item { Layout.fillWidth: true }
        SecondaryButton {
            isSmall: true
            isOutlined: false
            ground: Theme.fill
            text: strip.isPaused ? qsTr("Resume") : qsTr("Pause")
            onClicked: strip.contentView.watcher.isPaused = !strip.isPaused
        }
    }
}
