// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick
import QtQuick.Templates as T
import Varlo

/// Something that a popover does, as opposed to a choice.
T.AbstractButton {
    id: action

    property string iconName

    implicitHeight: Theme.text(36)
    implicitWidth: contentItem.implicitWidth + leftPadding + rightPadding
    leftPadding: 10
    rightPadding: 10
    hoverEnabled: true
    focusPolicy: Qt.StrongFocus
    Accessible.role: Accessible.Button
    Accessible.name: text
    Accessible.onPressAction: clicked()
    Keys.onReturnPressed: clicked()
    Keys.onEnterPressed: clicked()
    Keys.onDownPressed: nextItemInFocusChain(true).forceActiveFocus(Qt.TabFocusReason)
    Keys.onUpPressed: nextItemInFocusChain(false).forceActiveFocus(Qt.BacktabFocusReason)

    contentItem: Row {
        spacing: 10
        Icon {
            visible: action.iconName !== ""
            anchors.verticalCenter: parent.verticalCenter
            name: action.iconName
            size: 16
        }
        Words {
            anchors.verticalCenter: parent.verticalCenter
            text: action.text
            font.weight: Font.Medium
        }
    }
    background: Rectangle {
        radius: 9
        color: action.hovered || action.activeFocus ? Theme.accentTint : "transparent"
        border { width: action.visualFocus ? 2 : 0; color: Theme.accent }
    }
}
