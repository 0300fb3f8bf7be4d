// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick
import QtQuick.Layouts
import Varlo

/// One line of a card: an optional tile, a title over a detail line, and at the right what can be done.
Item {
    id: row

    property string iconName
    property bool isAccented: false ///< the tile's colour
    property string title
    property string detail
    property bool isTitleStrong: true
    property int titleElide: Text.ElideRight
    property string help ///< a tooltip of the title
    property bool isClickable: false ///< as a whole; the keyboard uses the control in it
    default property alias controls: controls.data
    signal clicked

    Layout.fillWidth: true
    implicitHeight: Math.max(Theme.text(48), line.implicitHeight + 16)

    Rectangle {
        visible: row.y > 0
        anchors { left: parent.left; leftMargin: 14; right: parent.right; rightMargin: 1 }
        height: 1
        color: Theme.line
    }
    MouseArea { // below the controls, which get their own clicks
        anchors.fill: parent
        enabled: row.isClickable
        onClicked: row.clicked()
    }
    RowLayout {
        id: line
        anchors { fill: parent; leftMargin: 14; rightMargin: 12 }
        spacing: 12

        Rectangle {
            visible: row.iconName !== ""
            implicitWidth: 32
            implicitHeight: 32
            radius: 9
            color: row.isAccented ? Theme.accentTint : Theme.fill
            Icon {
                anchors.centerIn: parent
                name: row.iconName
                color: row.isAccented ? Theme.accent : Theme.ink2
            }
        }
        ColumnLayout {
            spacing: 0
            Label {
                Layout.fillWidth: true
                text: row.title
                elide: row.titleElide
                font.weight: row.isTitleStrong ? Font.Medium : Font.Normal
                lineHeight: Theme.text(20)
                lineHeightMode: Text.FixedHeight
                HoverHandler { id: hover }
                Tip { text: row.help; isWanted: hover.hovered && row.help !== "" }
            }
            Label {
                visible: text !== ""
                Layout.fillWidth: true
                text: row.detail
                size: 12
                color: Theme.ink3
                wrapMode: Text.Wrap
                lineHeight: Theme.text(17)
                lineHeightMode: Text.FixedHeight
            }
        }
        RowLayout { id: controls; spacing: 12 }
    }
}
