// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick
import QtQuick.Templates as T
import Varlo

/// One line of a menu, with the keys that do the same.
T.MenuItem {
    id: entry

    property string keys

    implicitWidth: 238
    implicitHeight: Theme.text(32)
    leftPadding: 10
    rightPadding: 10
    hoverEnabled: true
    Accessible.role: Accessible.MenuItem
    Accessible.name: text
    //: Read aloud in place of an entry's keys
    Accessible.description: enabled ? keys : qsTr("Not available now")
    Accessible.onPressAction: if (enabled) clicked()

    contentItem: Item {
        Words {
            anchors { left: parent.left; right: shortcut.left; rightMargin: 24; verticalCenter: parent.verticalCenter }
            text: entry.text
            size: 13
            color: entry.enabled ? Theme.ink : Theme.inkDisabled
        }
        Words {
            id: shortcut
            anchors { right: parent.right; verticalCenter: parent.verticalCenter }
            text: entry.keys
            size: 12
            color: entry.enabled ? Theme.ink3 : Theme.inkDisabled
        }
    }
    background: Rectangle {
        radius: 8
        color: entry.highlighted && entry.enabled ? Theme.accentTint : "transparent"
    }
}
