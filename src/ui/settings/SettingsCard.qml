// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick
import QtQuick.Layouts
import Varlo

/// Rows that belong together, in an outline.
Rectangle {
    id: card

    property bool isTinted: false
    default property alias rows: column.data

    Layout.fillWidth: true
    implicitHeight: column.implicitHeight
    radius: 12
    color: isTinted ? Theme.sunken : Theme.surface
    border { width: 1; color: Theme.line }

    ColumnLayout {
        id: column
        anchors { left: parent.left; right: parent.right }
        spacing: 0
    }
}
