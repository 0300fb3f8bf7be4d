// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick
import QtQuick.Templates as T
import Varlo

/// One choice of a picker's popover.
T.RadioButton {
    id: row

    required property bool isSelected
    required property string name
    property string detail ///< a second line
    property bool showsRadio: true
    property bool isApart: false ///< a line below it
    property string editHelp ///< names the pencil, which is there with it
    property string editDescription
    signal editRequested

    implicitHeight: Theme.text(detail === "" ? 36 : 50) + bottomInset
    bottomInset: isApart ? 13 : 0
    bottomPadding: bottomInset
    leftPadding: 10
    rightPadding: editHelp === "" ? 10 : 40
    checked: isSelected
    onToggled: checked = Qt.binding(() => row.isSelected) // who owns the choice decides
    hoverEnabled: true
    focusPolicy: Qt.StrongFocus

    Keys.onReturnPressed: clicked()
    Keys.onEnterPressed: clicked()
    Keys.onDownPressed: nextItemInFocusChain(true).forceActiveFocus(Qt.TabFocusReason)
    Keys.onUpPressed: nextItemInFocusChain(false).forceActiveFocus(Qt.BacktabFocusReason)

    Accessible.name: name
    Accessible.description: detail
    Accessible.onPressAction: clicked()
    Accessible.onToggleAction: clicked()

    contentItem: Item {
        RadioMark {
            id: mark
            visible: row.showsRadio
            anchors.verticalCenter: parent.verticalCenter
            isOn: row.isSelected
        }
        Column {
            anchors {
                left: row.showsRadio ? mark.right : parent.left
                leftMargin: row.showsRadio ? 10 : 0
                right: parent.right
                verticalCenter: parent.verticalCenter
            }
            Words {
                width: parent.width
                text: row.name
                font.weight: Font.Medium
                elide: Text.ElideRight
            }
            Words {
                width: parent.width
                visible: row.detail !== ""
                text: row.detail
                size: 12
                color: Theme.ink3
                elide: Text.ElideRight
            }
        }
    }
    background: Rectangle {
        radius: 9
        color: row.hovered || row.activeFocus ? Theme.accentTint : "transparent"
        border { width: row.visualFocus ? 2 : 0; color: Theme.accent }
    }

    Rectangle {
        visible: row.isApart
        anchors { left: parent.left; right: parent.right; bottom: parent.bottom }
        anchors { leftMargin: 10; rightMargin: 10; bottomMargin: 6 }
        height: 1
        color: Theme.line
    }
    ChromeIconButton {
        visible: row.editHelp !== ""
        anchors { right: parent.right; rightMargin: 6; verticalCenter: parent.verticalCenter }
        width: 28
        height: 28
        radius: 7
        systemName: "pencil"
        iconSize: 15
        hover: Theme.surface
        help: row.editHelp
        description: row.editDescription
        onClicked: row.editRequested()
    }
}
