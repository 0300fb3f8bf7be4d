// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick
import QtQuick.Templates as T
import Varlo

/// One line to type in, with an optional icon before it.
T.TextField {
    id: field

    required property string label ///< its accessible name
    property string iconName

    implicitHeight: Theme.text(34)
    implicitWidth: 260
    leftPadding: iconName === "" ? 10 : 34
    rightPadding: 10
    verticalAlignment: TextInput.AlignVCenter
    font.family: Theme.family
    font.pixelSize: Theme.text(14)
    color: Theme.ink
    selectionColor: Theme.accentTint2
    selectedTextColor: Theme.ink
    selectByMouse: true
    activeFocusOnTab: true
    renderType: Text.NativeRendering
    Accessible.role: Accessible.EditableText
    Accessible.name: label

    Words {
        x: field.leftPadding
        width: field.width - field.leftPadding - field.rightPadding
        height: field.height
        visible: field.text === "" && field.preeditText === ""
        text: field.placeholderText
        color: Theme.ink3
        elide: Text.ElideRight
    }
    Icon {
        visible: field.iconName !== ""
        x: 10
        anchors.verticalCenter: parent.verticalCenter
        name: field.iconName
        size: 17
        color: Theme.ink3
    }
    background: Rectangle {
        radius: 9
        color: Theme.surface
        border { width: field.activeFocus ? 2 : 1; color: field.activeFocus ? Theme.accent : Theme.control }
        Rectangle {
            visible: field.activeFocus
            anchors { fill: parent; margins: -3 }
            z: -1
            radius: 12
            color: Theme.accentTint2
        }
    }
}
