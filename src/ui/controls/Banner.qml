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
    property bool isGood: false
    readonly property color ink: isError ? Theme.bad : isGood ? Theme.ok : Theme.warn
    property alias below: below.data
    property alias buttons: buttons.data
    property string announcement: title

    implicitHeight: Math.max(Theme.text(isError ? 44 : 52), line.implicitHeight + 14)
    radius: 12
    color: isError ? Theme.badTint : isGood ? Theme.okTint : Theme.warnTint
    border { width: 1; color: isError ? Theme.badLine : isGood ? Theme.okLine : Theme.warnLine }
    Accessible.role: Accessible.AlertMessage
    Accessible.name: announcement

    RowLayout {
        id: line
        // Its own height, since the banner's follows from it.
        anchors {
            left: parent.left
            leftMargin: 14
            right: parent.right
            rightMargin: 9
            verticalCenter: parent.verticalCenter
        }
        spacing: 12
        Icon { name: banner.iconName; size: banner.isError ? 20 : 22; color: banner.ink }
        Column { // a layout would ask again and again how high the wrapped words are
            Layout.fillWidth: true
            Layout.preferredWidth: 1
            Words {
                width: parent.width
                text: banner.title
                size: 13
                font.weight: banner.isError ? Font.Medium : Font.DemiBold
                wrapMode: Text.Wrap
            }
            RowLayout {
                id: below
                spacing: 6
                visible: children.length > 0
            }
        }
        RowLayout {
            id: buttons
            visible: children.length > 0
            Layout.fillWidth: false // a layout would take its part of what the words leave
            spacing: 8
        }
    }
}
