// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick
import QtQuick.Templates as T
import Varlo

/// A field of a template: dragged to its place, or moved with Alt and an arrow key; Delete or the x removes it.
T.AbstractButton {
    id: chip

    required property int index
    required property string label
    required property int count ///< of all the fields
    readonly property bool isDragged: drag.active
    signal dragged(point at) ///< in the chip's own coordinates
    signal dropped
    signal moveRequested(int by)
    signal removeRequested

    implicitWidth: contentItem.implicitWidth
    implicitHeight: Theme.text(34)
    hoverEnabled: true
    focusPolicy: Qt.StrongFocus
    z: isDragged ? 1 : 0
    Accessible.role: Accessible.Button
    Accessible.name: label
    //: The place of a field in a template: %1 of %2
    Accessible.description: qsTr("%1 of %2").arg(index + 1).arg(count)
    Accessible.onPressAction: forceActiveFocus(Qt.TabFocusReason)

    Keys.onPressed: event => {
        const isMove = event.modifiers & Qt.AltModifier;
        if (isMove && (event.key === Qt.Key_Left || event.key === Qt.Key_Right))
            moveRequested(event.key === Qt.Key_Left ? -1 : 1);
        else if (event.key === Qt.Key_Delete)
            removeRequested();
        else
            return;
        event.accepted = true;
    }

    DragHandler {
        id: drag
        target: chip.contentItem
        cursorShape: active ? Qt.ClosedHandCursor : Qt.OpenHandCursor
        onCentroidChanged: if (active) chip.dragged(centroid.position)
        onActiveChanged: {
            if (active)
                return;
            chip.contentItem.x = 0;
            chip.contentItem.y = 0;
            chip.dropped();
        }
    }
    contentItem: Rectangle {
        implicitWidth: line.implicitWidth + 12
        radius: 9
        rotation: chip.isDragged ? -1.5 : 0
        color: Theme.surface
        border { width: 1; color: chip.isDragged ? Theme.accent : Theme.lineStrong }
        FocusRing { isShown: chip.visualFocus; ground: Theme.sunken }
        Loader {
            anchors.fill: parent
            z: -1
            active: chip.isDragged
            sourceComponent: Shadow { radius: 9 }
        }
        Row {
            id: line
            x: 6
            anchors.verticalCenter: parent.verticalCenter
            spacing: 6
            Icon {
                anchors.verticalCenter: parent.verticalCenter
                name: "grip-vertical"
                size: 16
                color: Theme.control
            }
            Words {
                anchors.verticalCenter: parent.verticalCenter
                text: chip.label
                size: 13
                font.weight: Font.Medium
            }
            ChromeIconButton {
                anchors.verticalCenter: parent.verticalCenter
                width: 20
                height: 20
                radius: 6
                systemName: "x"
                iconSize: 14
                help: qsTr("Remove Field")
                description: chip.label
                ground: Theme.surface
                onClicked: chip.removeRequested()
            }
        }
    }
}
