// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick
import Varlo

/// A file of the introduction's picture: under the name it had, or under the one that Varlo gave it.
Item {
    id: card

    required property string kind ///< a key of Theme.kinds
    required property string oldName
    required property string newName
    property bool isNamed: false
    property bool isDone: false
    property int delay: 0 ///< milliseconds before a change begins
    readonly property var look: Theme.kinds[kind]

    property real named: isNamed ? 1 : 0
    Behavior on named {
        enabled: Theme.isAnimated
        SequentialAnimation {
            PauseAnimation { duration: card.delay }
            NumberAnimation { duration: Theme.story; easing.type: Easing.InOutCubic }
        }
    }

    implicitWidth: 404
    implicitHeight: 64

    Shadow {
        anchors.fill: parent
        opacity: card.named
    }
    Rectangle {
        anchors.fill: parent
        radius: 14
        color: Qt.rgba(1, 1, 1, .12 + .88 * card.named)
    }
    Rectangle {
        x: 12
        anchors.verticalCenter: parent.verticalCenter
        width: 38
        height: 38
        radius: 10
        color: card.named > .5 ? card.look.tint : Qt.rgba(1, 1, 1, .16)
        Icon {
            anchors.centerIn: parent
            name: card.look.icon
            size: 20
            color: card.named > .5 ? card.look.ink : Theme.surface
        }
    }
    Label {
        opacity: 1 - card.named
        anchors {
            left: parent.left
            leftMargin: 62
            right: parent.right
            rightMargin: 16
            verticalCenter: parent.verticalCenter
        }
        text: card.oldName
        color: Theme.surface
        font.weight: Font.Medium
        elide: Text.ElideMiddle
    }
    Column {
        opacity: card.named
        anchors {
            left: parent.left
            leftMargin: 62
            right: sign.left
            rightMargin: 8
            verticalCenter: parent.verticalCenter
        }
        Label {
            width: parent.width
            text: card.newName
            font.weight: Font.DemiBold
            elide: Text.ElideMiddle
        }
        Label {
            width: parent.width
            text: qsTr("was") + " " + card.oldName
            size: 12
            color: Theme.ink3
            elide: Text.ElideMiddle
        }
    }
    Icon {
        id: sign
        opacity: card.named
        anchors { right: parent.right; rightMargin: 16; verticalCenter: parent.verticalCenter }
        name: card.isDone ? "circle-check-filled" : "sparkles"
        size: card.isDone ? 20 : 18
        color: card.isDone ? Theme.ok : Theme.accent
    }
}
