// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick
import QtQuick.Templates as T
import Varlo

/// A switch; its label stands beside it and is its accessible name.
T.Switch {
    id: control

    required property string label

    implicitWidth: 40
    implicitHeight: 28
    hoverEnabled: true
    focusPolicy: Qt.StrongFocus
    Accessible.role: Accessible.CheckBox
    Accessible.name: label
    Accessible.checkable: true
    Accessible.checked: checked
    Accessible.onPressAction: { control.toggle(); control.toggled(); }
    Accessible.onToggleAction: { control.toggle(); control.toggled(); }
    Keys.onReturnPressed: { control.toggle(); control.toggled(); }

    indicator: Rectangle {
        y: 2
        width: 40
        height: 24
        radius: 12
        color: control.checked ? (control.hovered ? Theme.accentHover : Theme.accent) : Theme.control
        Behavior on color { ColorAnimation { duration: Theme.fast } }
        Rectangle {
            x: control.checked ? 19 : 3
            y: 3
            width: 18
            height: 18
            radius: 9
            color: Theme.surface
            Behavior on x { NumberAnimation { duration: Theme.fast; easing.type: Easing.OutCubic } }
        }
        FocusRing { isShown: control.visualFocus; controlRadius: 12 }
    }
}
