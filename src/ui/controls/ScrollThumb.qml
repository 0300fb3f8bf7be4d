// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick
import QtQuick.Templates as T
import Varlo

/// A scroll bar that lies over what it scrolls.
T.ScrollBar {
    id: bar

    implicitWidth: orientation === Qt.Vertical ? 16 : 0
    padding: 2
    minimumSize: orientation === Qt.Vertical ? 32 / Math.max(32, height) : 0
    hoverEnabled: true
    visible: size < 1
    Accessible.ignored: true

    contentItem: Item {
        Rectangle {
            anchors { right: parent.right; top: parent.top; bottom: parent.bottom }
            width: bar.hovered || bar.pressed ? 12 : 8
            radius: width / 2
            color: Theme.control
            opacity: .6
        }
    }
}
