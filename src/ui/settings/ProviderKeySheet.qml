// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick
import QtQuick.Layouts
import Varlo

/// Takes an API key, which is never shown again, and below that where it is for.
Sheet {
    id: sheet

    required property ProviderModel provider
    readonly property bool isKey: provider.isKey(keyField.typed)
    readonly property bool isServerChanged: endpointField.text.trim() !== provider.endpoint
        || modelField.text.trim() !== provider.model

    function save() {
        if (isKey && !provider.isSaving && provider.setUp(endpointField.text, modelField.text))
            provider.saveKey(keyField.typed);
    }
    function applyServer() {
        if (provider.setUp(endpointField.text, modelField.text)) {
            endpointField.text = provider.endpoint;
            modelField.text = provider.model;
        }
    }

    title: qsTr("Use your own provider")
    wishedWidth: 460
    wishedHeight: content.implicitHeight + 48
    onOpened: {
        provider.refresh();
        keyField.takeFocus();
    }
    onClosed: {
        keyField.clear();
        provider.forgetOutcome();
    }

    Connections {
        target: sheet.provider
        function onKeySaved() { sheet.close(); }
        function onKeyNotSaved() { keyField.takeFocus(); }
    }

    component Caption: Words {
        Layout.bottomMargin: 6
        size: 13
        font.weight: Font.Medium
    }

    contentItem: ScrollArea {
        id: area
        contentHeight: content.implicitHeight + 48
        showsEnd: outcome.visible

        ColumnLayout {
            id: content
            x: 24
            y: 24
            width: area.width - 48
            spacing: 0

            RowLayout {
                spacing: 14
                Rectangle {
                    implicitWidth: 36
                    implicitHeight: 36
                    radius: 10
                    color: Theme.accentTint
                    Icon { anchors.centerIn: parent; name: "key"; size: 20; color: Theme.accent }
                }
                ColumnLayout {
                    spacing: 1
                    Label {
                        Layout.fillWidth: true
                        text: sheet.title
                        size: 17
                        font { family: Theme.displayFamily; weight: Font.DemiBold }
                        wrapMode: Text.Wrap
                    }
                    Label {
                        Layout.fillWidth: true
                        text: qsTr("Paste your own API key from your chosen provider.")
                        size: 13
                        color: Theme.ink2
                        wrapMode: Text.Wrap
                    }
                }
            }
            GrantedMark {
                visible: sheet.provider.hasKey
                Layout.topMargin: 16
                text: qsTr("Your own key is in use.")
                size: 13
            }
            Caption {
                Layout.topMargin: sheet.provider.hasKey ? 16 : 20
                text: keyField.label
            }
            SecretField {
                id: keyField
                Layout.fillWidth: true
                label: sheet.provider.hasKey ? qsTr("New API key") : qsTr("API key")
                onAccepted: sheet.save()
            }
            RowLayout {
                Layout.topMargin: 24
                spacing: 8
                SecondaryButton {
                    visible: sheet.provider.hasKey
                    isDestructive: true
                    text: qsTr("Remove Key")
                    onClicked: {
                        sheet.provider.removeKey();
                        sheet.close();
                    }
                }
                Item { Layout.fillWidth: true }
                SecondaryButton { text: qsTr("Cancel"); onClicked: sheet.close() }
                PrimaryButton {
                    text: qsTr("Save")
                    enabled: sheet.isKey && !sheet.provider.isSaving
                    onClicked: sheet.save()
                }
            }

            Rectangle {
                Layout.fillWidth: true
                Layout.topMargin: 20
                Layout.bottomMargin: 16
                implicitHeight: 1
                color: Theme.line
            }
            Caption { text: endpointField.label }
            Field {
                id: endpointField
                Layout.fillWidth: true
                label: qsTr("Server address")
                text: sheet.provider.endpoint
                placeholderText: sheet.provider.hostedEndpoint
                inputMethodHints: Qt.ImhUrlCharactersOnly | Qt.ImhNoAutoUppercase
                enabled: !sheet.provider.isEndpointFixed
                opacity: enabled ? 1 : .42
                onAccepted: sheet.applyServer()
            }
            Caption { Layout.topMargin: 12; text: modelField.label }
            Field {
                id: modelField
                Layout.fillWidth: true
                label: qsTr("AI model")
                text: sheet.provider.model
                placeholderText: sheet.provider.usualModel
                enabled: !sheet.provider.isModelFixed
                opacity: enabled ? 1 : .42
                onAccepted: sheet.applyServer()
            }
            SettingsNote {
                Layout.topMargin: 10
                iconName: "lock"
                text: qsTr("Your files go to this server and nowhere else. A key goes only to the server it was saved for.")
            }
            RowLayout {
                Layout.topMargin: 14
                spacing: 8
                Item { Layout.fillWidth: true }
                SecondaryButton {
                    text: qsTr("Test")
                    enabled: !sheet.provider.isTesting
                    onClicked: sheet.provider.test(endpointField.text, modelField.text)
                }
                SecondaryButton {
                    //: Uses the server address and the model that were typed
                    text: qsTr("Apply")
                    enabled: sheet.isServerChanged
                    onClicked: sheet.applyServer()
                }
            }
            Banner {
                id: outcome
                visible: sheet.provider.outcome !== "" || sheet.provider.isTesting
                Layout.fillWidth: true
                Layout.topMargin: 12
                isError: !sheet.provider.isOutcomeGood && !sheet.provider.isTesting
                isGood: !isError
                iconName: sheet.provider.isTesting ? "loader-2" : isError ? "alert-circle" : "check"
                title: sheet.provider.isTesting ? qsTr("Waiting for an answer…") : sheet.provider.outcome
            }
        }
    }
}
