// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick
import QtQuick.Layouts
import Varlo

/// What the check for updates found.
Sheet {
    id: sheet

    required property UpdaterModel updater

    title: updater.title
    wishedWidth: 400
    wishedHeight: content.implicitHeight
    onOpened: close.forceActiveFocus(Qt.TabFocusReason)

    contentItem: ColumnLayout {
        id: content
        spacing: 0
        Label {
            Layout.fillWidth: true
            Layout.margins: 24
            Layout.bottomMargin: 8
            text: sheet.title
            size: 17
            font { family: Theme.displayFamily; weight: Font.DemiBold }
            wrapMode: Text.Wrap
        }
        Label {
            Layout.fillWidth: true
            Layout.leftMargin: 24
            Layout.rightMargin: 24
            text: sheet.updater.detail
            color: Theme.ink2
            wrapMode: Text.Wrap
        }
        RowLayout {
            Layout.fillWidth: true
            Layout.margins: 24
            Layout.topMargin: 16
            spacing: 10
            Item { Layout.fillWidth: true }
            SecondaryButton { id: close; text: qsTr("Close"); onClicked: sheet.close() }
            PrimaryButton {
                visible: sheet.updater.hasPage
                text: qsTr("Open Page")
                onClicked: sheet.updater.openPage()
            }
        }
    }
}
