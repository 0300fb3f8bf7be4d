// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick
import QtQuick.Layouts
import Varlo

/// Asks before something that cannot be taken back; the way out has the focus.
Sheet {
    id: dialog

    property string message
    property string iconName: "trash"
    property string confirmText
    signal confirmed

    isSecond: true
    wishedWidth: 380
    wishedHeight: content.implicitHeight
    onOpened: cancel.forceActiveFocus(Qt.TabFocusReason)

    contentItem: ColumnLayout {
        id: content
        spacing: 0
        RowLayout {
            Layout.fillWidth: true
            Layout.margins: 24
            Layout.bottomMargin: 8
            spacing: 14
            Rectangle {
                implicitWidth: 36
                implicitHeight: 36
                radius: 10
                color: Theme.badTint
                Icon { anchors.centerIn: parent; name: dialog.iconName; size: 20; color: Theme.bad }
            }
            Label {
                Layout.fillWidth: true
                text: dialog.title
                size: 17
                font { family: Theme.displayFamily; weight: Font.DemiBold }
                wrapMode: Text.Wrap
            }
        }
        Label {
            visible: text !== ""
            Layout.fillWidth: true
            Layout.leftMargin: 24
            Layout.rightMargin: 24
            text: dialog.message
            color: Theme.ink2
            wrapMode: Text.Wrap
        }
        RowLayout {
            Layout.fillWidth: true
            Layout.margins: 24
            Layout.topMargin: 16
            spacing: 10
            Item { Layout.fillWidth: true }
            SecondaryButton { id: cancel; text: qsTr("Cancel"); onClicked: dialog.close() }
            DestructiveButton {
                text: dialog.confirmText
                onClicked: {
                    dialog.confirmed(); // first: whoever closes it may destroy it
                    dialog.close();
                }
            }
        }
    }
}
