// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick
import QtQuick.Layouts
import Varlo

/// The language of the interface.
ColumnLayout {
    id: pane

    required property SettingsModels models

    spacing: 14
    SettingsHeading {
        Layout.topMargin: 4
        text: qsTr("Interface language")
    }
    PillSwitch {
        options: [
            { id: "system", name: qsTr("System") },
            { id: "en", name: "English" },
            { id: "nl", name: "Nederlands" },
            { id: "es", name: "Español" }
        ]
        selection: pane.models.preferences.uiLanguage
        Accessible.role: Accessible.Grouping
        Accessible.name: qsTr("Interface language")
        onChosen: id => pane.models.preferences.uiLanguage = id
    }
    SettingsNote {
        iconName: "info-circle"
        text: qsTr("Filename language is set in the main window.")
    }
    Item { Layout.fillHeight: true }
}
