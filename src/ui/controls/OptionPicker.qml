// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick
import QtQuick.Templates as T
import Varlo

/// Shows the choice made and opens a popover with one row per option. `options` is a list of { id, name, detail,
/// isApart }, the last two optional.
T.AbstractButton {
    id: picker

    property string label ///< the lighter word before the choice
    property var options: []
    property string selection
    property bool bordered: true
    property string chevron: "selector"
    property real popoverWidth: 208
    property string popoverFooter ///< below the rows: the address of a component that has a `picker`, this one
    property string caption ///< above the rows
    property var editHelpFor: option => ""
    property string editDescription ///< read aloud with each pencil
    property string highlightedId ///< of the row under the pointer or the keyboard; "" for none
    readonly property T.Popup popover: loader.item as T.Popup
    readonly property bool isPresented: popover !== null && popover.opened
    signal chosen(string id)
    signal editRequested(string id)
    function close() {
        if (popover)
            popover.close();
    }

    readonly property var chosenOption: options.find(option => option.id === selection)

    implicitWidth: Math.min(260, Math.ceil(choice.implicitWidth + (lead.visible ? lead.width + 6 : 0)) + 22
        + leftPadding + rightPadding)
    implicitHeight: Theme.text(34)
    leftPadding: 12
    rightPadding: 8
    hoverEnabled: true
    focusPolicy: Qt.StrongFocus
    onClicked: {
        if (!popover)
            loader.setSource("OptionPopover.qml", { picker: picker }); // not even read before
        popover.open();
    }
    Keys.onReturnPressed: clicked()
    Keys.onDownPressed: clicked()

    Accessible.description: chosenOption ? chosenOption.name : ""
    Accessible.onPressAction: clicked()

    contentItem: Item {
        implicitHeight: row.implicitHeight
        Row {
            id: row
            anchors.verticalCenter: parent.verticalCenter
            spacing: 6
            Words {
                id: lead
                anchors.verticalCenter: parent.verticalCenter
                visible: text !== ""
                text: picker.label
                size: 13
                color: Theme.ink2
            }
            Words {
                id: choice
                anchors.verticalCenter: parent.verticalCenter
                width: Math.min(Math.ceil(implicitWidth),
                    picker.width - picker.leftPadding - picker.rightPadding - chevronIcon.width - 6
                    - (lead.visible ? lead.width + 6 : 0))
                text: picker.chosenOption ? picker.chosenOption.name : ""
                size: 13
                font.weight: Font.Medium
                elide: Text.ElideRight
            }
            Icon {
                id: chevronIcon
                anchors.verticalCenter: parent.verticalCenter
                name: picker.chevron
                size: 15
                color: Theme.ink3
            }
        }
    }
    background: Rectangle {
        radius: 9
        color: picker.bordered ? Theme.surface : picker.hovered ? Theme.fill : "transparent"
        border.width: picker.bordered ? 1 : 0
        border.color: picker.isPresented ? Theme.accent : picker.hovered ? Theme.lineHovered : Theme.lineStrong

        Rectangle {
            visible: picker.isPresented
            anchors { fill: parent; margins: -3 }
            z: -1
            radius: 12
            color: Theme.accentTint2
        }
        FocusRing { isShown: picker.visualFocus && !picker.isPresented; controlRadius: 9; ground: Theme.paper }
    }

    Loader { id: loader }
}
