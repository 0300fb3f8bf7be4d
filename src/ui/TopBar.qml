// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick
import Varlo

/// What the next suggestions are made with, and the ways to the history and the settings.
Item {
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

    readonly property real pickersRoom: chrome.x - language.x - templateGap - 8
    readonly property real templateGap: isNarrow ? 16 : 26

    Words {
        id: caption
        x: 16
        anchors.verticalCenter: parent.verticalCenter
        text: qsTr("Filename language:")
        size: 13
        color: Theme.ink2
    }
    OptionPicker {
        id: language
        x: caption.x + Math.ceil(caption.width) + 8
        anchors.verticalCenter: parent.verticalCenter
        width: Math.min(implicitWidth, Math.max(72, bar.pickersRoom - template.implicitWidth))
        caption: qsTr("Filename language")
        options: bar.languageOptions
        selection: bar.batch.languageId
        Accessible.name: qsTr("Filename language")
        onChosen: id => bar.batch.languageId = id
    }
    TemplatePicker {
        id: template
        x: language.x + language.width + bar.templateGap
        anchors.verticalCenter: parent.verticalCenter
        width: Math.min(implicitWidth, Math.max(120, bar.pickersRoom - language.width))
        templates: bar.templates
        selection: bar.batch.templateId
        onChosen: id => bar.batch.templateId = id
        onEditRequested: bar.templateEditRequested()
        onCreateRequested: bar.templateCreateRequested()
        onDeleteRequested: id => bar.templateDeleteRequested(id)
    }
    Row {
        id: chrome
        anchors { right: parent.right; rightMargin: 12; verticalCenter: parent.verticalCenter }
        spacing: 4
        ChromeIconButton {
            systemName: "history"
            help: qsTr("History")
            onClicked: bar.historyRequested()
        }
        ChromeIconButton {
            systemName: "settings"
            help: qsTr("Settings")
            onClicked: bar.settingsRequested()
        }
    }
}
