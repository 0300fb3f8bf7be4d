// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import Varlo

/// The picture, the first page or the first lines of a file, and its two names; up and down go on to its neighbours.
Sheet {
    id: sheet

    required property QuickLook look

    wishedWidth: 720
    wishedHeight: 560
    title: look.oldName
    onOpened: content.forceActiveFocus(Qt.OtherFocusReason)

    contentItem: ColumnLayout {
        id: content
        focus: true
        spacing: 0
        Accessible.role: Accessible.Grouping
        Accessible.name: sheet.look.newName

        Keys.onSpacePressed: sheet.close()
        Keys.onUpPressed: sheet.look.step(-1)
        Keys.onDownPressed: sheet.look.step(1)

        RowLayout {
            Layout.fillWidth: true
            Layout.leftMargin: 24
            Layout.rightMargin: 14
            Layout.topMargin: 12
            Layout.bottomMargin: 8
            Label {
                Layout.fillWidth: true
                text: Format.place(sheet.look.folderName, sheet.look.byteSize)
                size: 13
                color: Theme.ink3
                elide: Text.ElideMiddle
            }
            ChromeIconButton {
                systemName: "x"
                help: qsTr("Close")
                ground: Theme.surface
                onClicked: sheet.close()
            }
        }
        Rectangle {
            Layout.fillWidth: true
            Layout.fillHeight: true
            Layout.leftMargin: 24
            Layout.rightMargin: 24
            radius: 12
            color: Theme.sunken
            border { width: 1; color: Theme.line }

            PreviewPicture {
                anchors { fill: parent; margins: 1 }
                picture: sheet.look.picture
                Accessible.role: Accessible.Graphic
                Accessible.name: sheet.title
            }
            Flickable {
                id: flick
                anchors { fill: parent; margins: 1 }
                visible: sheet.look.text !== ""
                contentHeight: lines.height
                clip: true
                boundsBehavior: Flickable.StopAtBounds
                T.ScrollBar.vertical: ScrollThumb { }
                Label {
                    id: lines
                    width: flick.width
                    padding: 16
                    text: sheet.look.text
                    wrapMode: Text.Wrap
                    onTextChanged: flick.contentY = 0
                }
            }
            Label {
                anchors.centerIn: parent
                width: Math.min(implicitWidth, parent.width - 48)
                text: sheet.look.message
                visible: text !== ""
                horizontalAlignment: Text.AlignHCenter
                wrapMode: Text.Wrap
                color: Theme.ink3
            }
            Icon {
                anchors.centerIn: parent
                visible: sheet.look.isReading
                name: "loader-2"
                size: 22
                RotationAnimation on rotation {
                    running: sheet.look.isReading && Theme.isAnimated
                    loops: Animation.Infinite
                    from: 0
                    to: 360
                    duration: Theme.spin
                }
            }
        }
        Row {
            id: names
            readonly property real room: proposed.visible ? width - 18 - 2 * spacing : width
            Layout.fillWidth: true
            Layout.leftMargin: 24
            Layout.rightMargin: 24
            Layout.topMargin: 14
            Layout.bottomMargin: 18
            spacing: 10
            Label {
                width: Math.min(implicitWidth, Math.max(names.room / 2, names.room - proposed.implicitWidth))
                text: Format.isolated(sheet.look.oldName)
                Accessible.name: sheet.look.oldName
                font.weight: Font.Medium
                elide: Text.ElideMiddle
            }
            Icon { visible: proposed.visible; name: "arrow-right"; size: 18; color: Theme.lineStrong }
            Label {
                id: proposed
                visible: sheet.look.newName !== ""
                width: Math.min(implicitWidth, names.width - x)
                text: Format.isolated(sheet.look.newName)
                Accessible.name: sheet.look.newName
                font.weight: Font.Medium
                color: Theme.accentInk
                elide: Text.ElideMiddle
            }
        }
    }
}
