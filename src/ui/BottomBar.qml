// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick
import Varlo

/// Adds, clears, counts, and takes the next step: one pill is filled at a time.
Item {
    id: bar

    required property RenamerViewModel batch
    property bool isNarrow: false
    property bool isTight: false ///< no room for the total size
    signal addFilesRequested
    signal renameAllRequested

    implicitHeight: Theme.text(64)

    Rectangle {
        id: progress
        visible: bar.batch.isSuggesting || bar.batch.isRenaming
        anchors { left: parent.left; right: parent.right; leftMargin: 16; rightMargin: 16 }
        y: 6
        height: 3
        radius: 2
        color: Theme.fill
        readonly property int part: bar.batch.isRenaming ? bar.batch.renameDoneCount : bar.batch.completedCount
        readonly property int all: bar.batch.isRenaming ? bar.batch.renameTotalCount : bar.batch.count
        Accessible.role: Accessible.ProgressBar
        Accessible.name: part + "/" + all

        Rectangle {
            width: parent.all > 0 ? parent.width * parent.part / parent.all : 0
            height: parent.height
            radius: 2
            color: Theme.accent
            Behavior on width { NumberAnimation { duration: Theme.isAnimated ? 200 : 0; easing.type: Easing.OutCubic } }
        }
    }

    component Statistic: Row {
        id: statistic
        required property string iconName
        required property string text
        property string help
        spacing: 6
        Icon { anchors.verticalCenter: parent.verticalCenter; name: statistic.iconName; size: 16 }
        Words {
            anchors.verticalCenter: parent.verticalCenter
            text: statistic.text
            size: 13
            font.weight: Font.Medium
            color: Theme.ink2
        }
        HoverHandler { id: hover }
        Tip { text: statistic.help; isWanted: hover.hovered }
    }

    Row {
        anchors { left: parent.left; leftMargin: 10; verticalCenter: parent.verticalCenter }
        spacing: bar.isNarrow ? 8 : 10
        ChromeIconButton {
            anchors.verticalCenter: parent.verticalCenter
            systemName: "plus"
            help: qsTr("Add Files…")
            onClicked: bar.addFilesRequested()
        }
        SecondaryButton {
            anchors.verticalCenter: parent.verticalCenter
            isGhost: true
            ground: Theme.paper
            text: qsTr("Clear")
            onClicked: bar.batch.clear()
        }
        Row {
            id: statistics
            spacing: bar.isNarrow ? 12 : 16
            anchors.verticalCenter: parent.verticalCenter
            leftPadding: bar.isNarrow ? 0 : 8
            Accessible.role: Accessible.StaticText
            Accessible.name: Format.joined([files.text, size.text, time.text], ", ")
            Statistic {
                id: files
                iconName: "files"
                text: bar.batch.completedCount + "/" + bar.batch.count
                help: qsTr("Files done of all")
            }
            Statistic {
                id: size
                visible: !bar.isTight
                iconName: "database"
                text: Format.bytes(bar.batch.totalBytes)
                help: qsTr("Size of all files")
            }
            Statistic {
                id: time
                visible: bar.batch.lastSuggestSeconds >= 0
                iconName: "clock"
                text: visible ? Format.seconds(bar.batch.lastSuggestSeconds) : ""
                help: qsTr("Time of the latest suggestions")
            }
        }
    }
    Row {
        anchors { right: parent.right; rightMargin: 16; verticalCenter: parent.verticalCenter }
        spacing: bar.isNarrow ? 8 : 10
        PrimaryPillButton {
            id: suggest
            objectName: "suggestNames"
            isNextStep: bar.batch.hasPending && !bar.batch.isSuggesting
            leftPadding: bar.isNarrow ? 15 : 20
            iconName: bar.batch.isSuggesting ? "loader-2" : "sparkles"
            isIconTurning: bar.batch.isSuggesting
            text: qsTr("Suggest Names")
            enabled: bar.batch.hasPending && !bar.batch.isSuggesting
            onClicked: bar.batch.suggest()
        }
        PrimaryPillButton {
            objectName: "renameAll"
            isNextStep: !suggest.isNextStep
            leftPadding: bar.isNarrow ? 15 : 20
            iconName: "player-play-filled"
            iconSize: 15
            text: qsTr("Rename All")
            enabled: bar.batch.renamableCount > 0 && !bar.batch.isRenaming
            onClicked: bar.renameAllRequested()
        }
    }
}
