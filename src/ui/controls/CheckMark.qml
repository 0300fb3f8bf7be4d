// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick
import QtQuick.Templates as T
import Varlo

/// A checkbox without words; `label` is its accessible name.
T.CheckBox {
    id: box

    required property string label

    implicitWidth: 28
    implicitHeight: 28
    focusPolicy: Qt.StrongFocus
    Accessible.role: Accessible.CheckBox
    Accessible.name: label
    Accessible.checkable: true
    Accessible.checked: checked
    Accessible.onPressAction: { toggle(); toggled(); }
    Accessible.onToggleAction: { toggle(); toggled(); }

    indicator: Rectangle {
        anchors.centerIn: parent
        width: 18
        height: 18
        radius: 5
        color: box.checked ? Theme.accent : Theme.surface
        border { width: 1.5; color: box.checked ? Theme.accent : Theme.control; pixelAligned: false }
        Icon {
            anchors.centerIn: parent
            visible: box.checked
            name: "check"
            size: 14
            color: Theme.surface
        }
        FocusRing { isShown: box.visualFocus; controlRadius: 5 }
    }
}
