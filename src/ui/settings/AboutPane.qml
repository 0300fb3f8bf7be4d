// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick
import QtQuick.Layouts
import Varlo

/// What this program is, where more is to be had, and the way to the API key.
ColumnLayout {
    id: pane

    required property SettingsModels models
    signal formatsRequested
    signal providerRequested

    component Arrow: ChromeIconButton {
        isSmall: true
        iconSize: 18
        ground: Theme.surface
    }

    spacing: 14
    Component.onCompleted: models.provider.refresh()

    RowLayout {
        Layout.topMargin: 2
        Layout.bottomMargin: 8
        spacing: 16
        Image {
            source: "image://icons/varlo"
            sourceSize { width: 72 * Theme.pixelRatio; height: 72 * Theme.pixelRatio }
            Layout.preferredWidth: 72
            Layout.preferredHeight: 72
            Accessible.ignored: true
        }
        ColumnLayout {
            spacing: 1
            Label {
                text: "Varlo"
                size: 22
                font { family: Theme.displayFamily; weight: Font.DemiBold }
            }
            Label {
                text: qsTr("Version ") + pane.models.version + " (" + pane.models.buildNumber + ")"
                size: 13
                color: Theme.ink3
            }
            Label {
                Layout.fillWidth: true
                text: qsTr("Renames files fast based on their contents.")
                size: 13
                color: Theme.ink2
                wrapMode: Text.Wrap
            }
        }
    }
    SettingsCard {
        SettingsRow {
            iconName: "key"
            title: qsTr("Use your own provider")
            isClickable: true
            onClicked: pane.providerRequested()
            detail: pane.models.provider.hasKey ? qsTr("Your own key is in use.") : qsTr("No API key set.")
            Arrow {
                systemName: "chevron-right"
                help: qsTr("Use your own provider")
                onClicked: pane.providerRequested()
            }
        }
        SettingsRow {
            iconName: "file-text"
            title: qsTr("Supported formats")
            detail: qsTr("The file types Varlo can read.")
            SecondaryButton {
                isSmall: true
                text: qsTr("View List")
                onClicked: pane.formatsRequested()
            }
        }
        SettingsRow {
            visible: pane.models.website !== ""
            iconName: "world"
            title: qsTr("Website")
            isClickable: true
            onClicked: Qt.openUrlExternally(pane.models.website)
            Arrow {
                systemName: "arrow-up-right"
                help: qsTr("Website")
                description: pane.models.website
                onClicked: Qt.openUrlExternally(pane.models.website)
            }
        }
        SettingsRow {
            visible: pane.models.support !== ""
            iconName: "mail"
            title: qsTr("Email")
            detail: qsTr("Questions, problems, or feedback.")
            SecondaryButton {
                isSmall: true
                text: qsTr("Contact support")
                onClicked: Qt.openUrlExternally(pane.models.support)
            }
        }
    }
    LinkButton {
        visible: pane.models.documentation !== ""
        text: qsTr("Documentation")
        textSize: 14
        iconName: "arrow-up-right"
        onClicked: Qt.openUrlExternally(pane.models.documentation)
    }
    Item { Layout.fillHeight: true }
}
