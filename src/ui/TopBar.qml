// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick
import QtQuick.Layouts
import Varlo

/// What the next suggestions are made with, and the ways to the history and the settings.
RowLayout {
    id: bar

    required property RenamerViewModel batch
    required property var languageOptions
    required property var templates
    property bool isNarrow: false
    signal historyRequested
    signal settingsRequested
    signal templateEditRequested
    signal templateCreateRequested
    signal templateDeleteRequested(string id)

    spacing: 8
    Label {
        Layout.leftMargin: 16
        text: qsTr("Filename language:")
        size: 13
        color: Theme.ink2
        Accessible.ignored: true
    }
    OptionPicker {
        Layout.maximumWidth: implicitWidth
        Layout.fillWidth: true
        Layout.minimumWidth: 72
        caption: qsTr("Filename language")
        options: bar.languageOptions
        selection: bar.batch.languageId
        Accessible.name: qsTr("Filename language")
        onChosen: id => bar.batch.languageId = id
    }
    TemplatePicker {
        Layout.leftMargin: bar.isNarrow ? 8 : 18
        Layout.maximumWidth: implicitWidth
        Layout.fillWidth: true
        Layout.minimumWidth: 120
        templates: bar.templates
        selection: bar.batch.templateId
        onChosen: id => bar.batch.templateId = id
        onEditRequested: bar.templateEditRequested()
        onCreateRequested: bar.templateCreateRequested()
        onDeleteRequested: id => bar.templateDeleteRequested(id)
    }
    Item { Layout.fillWidth: true; Layout.preferredWidth: 1 }
    ChromeIconButton {
        systemName: "history"
        help: qsTr("History")
        onClicked: bar.historyRequested()
    }
    ChromeIconButton {
        Layout.leftMargin: -4
        Layout.rightMargin: 12
        systemName: "settings"
        help: qsTr("Settings")
        onClicked: bar.settingsRequested()
    }
}
