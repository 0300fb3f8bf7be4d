// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick
import QtQuick.Layouts
import Varlo

/// Keyword tags on renamed files.
ColumnLayout {
    id: pane

    required property SettingsModels models

    spacing: 14
    SettingsCard {
        SettingsRow {
            title: qsTr("Add Finder tags to renamed files")
            Toggle {
                label: qsTr("Add Finder tags to renamed files")
                checked: pane.models.preferences.writeFinderTags
                onToggled: pane.models.preferences.writeFinderTags = checked
            }
        }
    }
    SettingsLead {
        text: qsTr("When on, Varlo suggests a few keyword tags for each file and writes them as Finder tags when you rename. You'll see the tags before they're applied.")
    }
    SettingsCard {
        Layout.topMargin: 6
        isTinted: true
        Accessible.ignored: true
        RowLayout {
            Layout.fillWidth: true
            Layout.margins: 14
            Layout.leftMargin: 16
            spacing: 12
            Rectangle {
                readonly property var kind: Theme.kinds["doc.text"]
                implicitWidth: 38
                implicitHeight: 38
                radius: 10
                color: kind.tint
                Icon { anchors.centerIn: parent; name: parent.kind.icon; size: 20; color: parent.kind.ink }
            }
            ColumnLayout {
                spacing: 2
                Words {
                    Layout.fillWidth: true
                    //: A file name, as an example of what Varlo makes
                    text: qsTr("2025-03-14 - Acme - Hosting plan - 174.24 EUR.pdf")
                    font.weight: Font.Medium
                    elide: Text.ElideMiddle
                }
                ChipLine {
                    Layout.fillWidth: true
                    //: Keyword tags of a file, as an example, with commas between them
                    tags: qsTr("invoice,hosting,acme").split(",")
                }
            }
        }
    }
    Item { Layout.fillHeight: true }
}
