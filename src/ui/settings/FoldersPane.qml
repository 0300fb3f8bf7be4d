// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick
import QtQuick.Layouts
import Varlo

/// Where Varlo may rename: everywhere through Finder, where the system has one, or in the folders listed.
ColumnLayout {
    id: pane

    required property SettingsModels models
    readonly property bool hasFinder: models.finder.isOffered
    readonly property bool isEmpty: models.folders.count === 0
    signal folderRequested

    spacing: 14
    Component.onCompleted: models.finder.refresh()

    SettingsHeading {
        visible: pane.hasFinder
        text: qsTr("Full access")
    }
    SettingsLead {
        visible: pane.hasFinder
        text: qsTr("Varlo renames by controlling Finder — one quick “Allow” lets it rename files anywhere, with no folder picking.")
    }
    GrantedMark { visible: pane.hasFinder && pane.models.finder.isGranted }
    PrimaryButton {
        visible: pane.hasFinder && !pane.models.finder.isGranted
        text: qsTr("Grant access to entire Finder (so all files)")
        onClicked: pane.models.finder.request()
    }
    SettingsNote {
        visible: pane.hasFinder
        iconName: "lock"
        text: qsTr("Varlo never reads your whole disk — it only opens the files you give it and asks Finder to do the renaming. Change this anytime in System Settings ▸ Privacy & Security ▸ Automation.")
    }
    SettingsHeading {
        visible: pane.hasFinder
        Layout.topMargin: 8
        text: qsTr("Or allow specific folders")
    }
    SettingsLead {
        text: pane.hasFinder
            ? qsTr("Prefer not to grant Finder control? Add the folders you rename in, and Varlo won't ask each time.")
            : qsTr("Choose a folder to let Varlo rename the files inside it.")
    }
    SettingsCard {
        visible: !pane.isEmpty
        Repeater {
            model: pane.models.folders
            SettingsRow {
                id: row
                required property string folder
                required property int index
                iconName: "folder"
                title: folder
                titleElide: Text.ElideMiddle
                isTitleStrong: false
                help: folder
                SecondaryButton {
                    isSmall: true
                    text: qsTr("Remove")
                    description: row.folder
                    onClicked: pane.models.folders.remove(row.index)
                }
            }
        }
    }
    SettingsCard {
        visible: pane.isEmpty
        isTinted: true
        implicitHeight: Theme.text(168)
        Column {
            Layout.alignment: Qt.AlignHCenter
            Layout.topMargin: Theme.text(54)
            spacing: 10
            Icon { anchors.horizontalCenter: parent.horizontalCenter; name: "folder"; size: 30; color: Theme.ink3 }
            Label {
                text: qsTr("No folders allowed yet.")
                color: Theme.ink3
                font.weight: Font.Medium
            }
        }
    }
    SecondaryButton {
        isFilled: pane.isEmpty && !pane.hasFinder
        rest: isFilled ? Theme.accent : Theme.surface
        hover: isFilled ? Theme.accentHover : Theme.sunken
        press: isFilled ? Theme.accentPressed : Theme.fill
        ink: isFilled ? Theme.surface : Theme.ink
        iconName: "folder-plus"
        iconSize: 17
        text: qsTr("Add Folder…")
        onClicked: pane.folderRequested()
    }
    Item { Layout.fillHeight: true }
}
