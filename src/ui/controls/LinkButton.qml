// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick
import QtQuick.Templates as T
import Varlo

/// A word that leads somewhere.
T.Button {
    id: link

    property color ink: Theme.accent
    property int textSize: 13
    property string iconName ///< behind the word
    property int iconSize: 16
    property bool isIconFirst: false

    implicitWidth: contentItem.implicitWidth
    implicitHeight: Math.max(28, label.implicitHeight)
    hoverEnabled: true
    focusPolicy: Qt.StrongFocus
    Accessible.role: Accessible.Button
    Accessible.name: text
    Accessible.onPressAction: clicked()
    Keys.onReturnPressed: clicked()

    contentItem: Row {
        spacing: 5
        layoutDirection: link.isIconFirst ? Qt.RightToLeft : Qt.LeftToRight
        Words {
            id: label
            anchors.verticalCenter: parent.verticalCenter
            size: link.textSize
            text: link.text
            color: link.ink
            font.weight: Font.Medium
            font.underline: link.hovered
        }
        Icon {
            visible: link.iconName !== ""
            anchors.verticalCenter: parent.verticalCenter
            name: link.iconName
            size: link.iconSize
            color: link.ink
        }
    }
    background: Item {
        FocusRing {
            anchors { fill: parent; margins: -2 }
            isShown: link.visualFocus
            controlRadius: 6
            ground: "transparent"
        }
    }
}
