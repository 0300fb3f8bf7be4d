// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick
import QtQuick.Layouts
import Varlo

/// A notice across the window; what stands in it goes below its title or, as buttons, to its right.
Rectangle {
    id: banner

    required property string iconName
    required property string title
    property bool isError: false
    property alias below: below.data
    property alias buttons: buttons.data
    property string announcement: title

    implicitHeight: Math.max(Theme.text(isError ? 44 : 52), line.implicitHeight + 14)
    radius: 12
    color: isError ? Theme.badTint : Theme.warnTint
    border { width: 1; color: isError ? Theme.badLine : Theme.warnLine }
    Accessible.role: Accessible.AlertMessage
    Accessible.name: announcement

    RowLayout {
        id: line
        anchors { fill: parent; leftMargin: 14; rightMargin: 9 }
        spacing: 12
        Icon { name: banner.iconName; size: banner.isError ? 20 : 22; color: banner.isError ? Theme.bad : Theme.warn }
        ColumnLayout {
            spacing: 0
            Label {
                Layout.fillWidth: true
                text: banner.title
                size: 13
                font.weight: banner.isError ? Font.Medium : Font.DemiBold
                wrapMode: Text.Wrap
                Accessible.ignored: true
            }
            RowLayout {
                id: below
                spacing: 6
                visible: children.length > 0
            }
        }
        RowLayout { id: buttons; spacing: 8 }
    }
}
