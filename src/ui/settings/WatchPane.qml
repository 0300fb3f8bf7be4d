// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick
import QtQuick.Layouts
import Varlo

/// The folder whose new files come by themselves.
ColumnLayout {
    id: pane

    required property SettingsModels models
    readonly property PreferenceModel preferences: models.preferences
    signal watchFolderRequested

    spacing: 14
    SettingsCard {
        SettingsRow {
            title: qsTr("Suggest names for new files automatically")
            Toggle {
                label: qsTr("Suggest names for new files automatically")
                checked: pane.preferences.watchFolderEnabled
                onToggled: pane.preferences.watchFolderEnabled = checked
            }
        }
        SettingsRow {
            id: folderRow
            title: qsTr("Folder")
            Label {
                Layout.maximumWidth: folderRow.width / 2
                text: pane.preferences.watchFolderPath
                size: 13
                color: Theme.ink3
                elide: Text.ElideMiddle
                HoverHandler { id: hover }
                Tip { text: pane.preferences.watchFolderPath; isWanted: hover.hovered }
            }
            SecondaryButton {
                isSmall: true
                text: qsTr("Choose Folder…")
                description: pane.preferences.watchFolderPath
                onClicked: pane.watchFolderRequested()
            }
        }
        SettingsRow {
            title: qsTr("Also include files already in this folder")
            Toggle {
                label: qsTr("Also include files already in this folder")
                checked: pane.preferences.watchFolderIncludeExisting
                onToggled: pane.preferences.watchFolderIncludeExisting = checked
            }
        }
    }
    SettingsNote {
        iconName: "eye"
        text: qsTr("New files appear in the main window as suggestions — nothing is renamed until you review.")
    }
    Item { Layout.fillHeight: true }
}
