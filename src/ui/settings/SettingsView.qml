// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick
import QtQuick.Layouts
import Varlo

/// Every setting, in six tabs. The one shown last is shown again; whoever opens the sheet at another one writes its id to
/// the preference first.
Sheet {
    id: sheet

    required property SettingsModels models
    required property TemplateChoices templates
    signal templateDeleteRequested(string id)
    signal folderRequested
    signal watchFolderRequested
    signal formatsRequested
    signal providerRequested

    readonly property PreferenceModel preferences: models.preferences
    readonly property int currentIndex: Math.max(0,
        tabs.items.findIndex(tab => tab.tabId === preferences.settingsSelectedTab))
    readonly property SettingsTab currentTab: tabs.items[currentIndex]
    readonly property bool isNarrow: width < 760
    readonly property real margin: isNarrow ? 24 : 28

    function show(index: int) {
        const tab = tabs.items[(index + tabs.items.length) % tabs.items.length] as SettingsTab;
        tab.takeFocus(true); // first: what has the focus may go with its pane
        preferences.settingsSelectedTab = tab.tabId;
    }

    title: qsTr("Settings")
    wishedWidth: 800
    wishedHeight: 580
    onOpened: currentTab.takeFocus(false)

    Component { id: languagePane; LanguagePane { models: sheet.models } }
    Component {
        id: templatesPane
        TemplatesPane {
            models: sheet.models
            templates: sheet.templates.choices
            onDeleteRequested: id => sheet.templateDeleteRequested(id)
        }
    }
    Component {
        id: foldersPane
        FoldersPane {
            models: sheet.models
            onFolderRequested: sheet.folderRequested()
        }
    }
    Component { id: tagsPane; TagsPane { models: sheet.models } }
    Component {
        id: watchPane
        WatchPane {
            models: sheet.models
            onWatchFolderRequested: sheet.watchFolderRequested()
        }
    }
    Component {
        id: aboutPane
        AboutPane {
            models: sheet.models
            onFormatsRequested: sheet.formatsRequested()
            onProviderRequested: sheet.providerRequested()
        }
    }

    contentItem: Item {

        Keys.onPressed: event => {
            if (!(event.modifiers & Qt.ControlModifier))
                return;
            if (event.key === Qt.Key_Tab)
                sheet.show(sheet.currentIndex + 1);
            else if (event.key === Qt.Key_Backtab)
                sheet.show(sheet.currentIndex - 1);
            else if (event.key >= Qt.Key_1 && event.key < Qt.Key_1 + tabs.items.length)
                sheet.show(event.key - Qt.Key_1);
            else
                return;
            event.accepted = true;
        }

        Item {
            id: side
            width: sheet.isNarrow ? 192 : 212
            height: parent.height
            clip: true
            Rectangle {
                width: parent.width + radius // its right corners lie outside
                height: parent.height
                radius: 18
                color: Theme.paper
            }
            Rectangle {
                anchors.right: parent.right
                width: 1
                height: parent.height
                color: Theme.line
            }
        }
        Column {
            id: tabs
            readonly property var items: [language, templates, folders, tags, watch, about]
            x: 10
            y: 20
            width: side.width - 20
            spacing: 2
            Accessible.role: Accessible.PageTabList
            Accessible.name: sheet.title

            Label {
                leftPadding: 10
                bottomPadding: 14
                text: sheet.title
                size: 18
                font { family: Theme.displayFamily; weight: Font.DemiBold }
            }
            component Tab: SettingsTab {
                width: tabs.width
                isCurrent: sheet.currentTab === this
                onClicked: sheet.preferences.settingsSelectedTab = tabId
                Keys.onDownPressed: sheet.show(sheet.currentIndex + 1)
                Keys.onUpPressed: sheet.show(sheet.currentIndex - 1)
            }
            Tab { id: language; tabId: "language"; text: qsTr("Language"); iconName: "world"; pane: languagePane }
            Tab { id: templates; tabId: "templates"; text: qsTr("Templates"); iconName: "forms"; pane: templatesPane }
            Tab { id: folders; tabId: "folders"; text: qsTr("Folders"); iconName: "folder"; pane: foldersPane }
            Tab { id: tags; tabId: "tags"; text: qsTr("Tags"); iconName: "tag"; pane: tagsPane }
            Tab { id: watch; tabId: "watch"; text: qsTr("Watch Folder"); iconName: "eye"; pane: watchPane }
            Tab { id: about; tabId: "about"; text: qsTr("About"); iconName: "info-circle"; pane: aboutPane }
        }

        ColumnLayout {
            anchors { left: side.right; right: parent.right; top: parent.top; bottom: parent.bottom }
            spacing: 0

            RowLayout {
                Layout.fillWidth: true
                Layout.leftMargin: sheet.margin
                Layout.rightMargin: 14
                Layout.topMargin: 12
                Layout.bottomMargin: 6
                Layout.minimumHeight: Theme.text(36)
                spacing: 8
                SecondaryButton {
                    visible: area.canGoBack
                    Layout.leftMargin: -10
                    isGhost: true
                    iconName: "chevron-left"
                    iconSize: 20
                    spacing: 4
                    leftPadding: 6
                    ink: Theme.ink
                    textSize: 18
                    font { family: Theme.displayFamily; weight: Font.DemiBold; letterSpacing: -.1 }
                    text: sheet.currentTab.text
                    onClicked: area.shownTemplates.goBack()
                }
                Label {
                    visible: !area.canGoBack
                    Layout.fillWidth: true
                    text: sheet.currentTab.text
                    size: 18
                    elide: Text.ElideRight
                    font { family: Theme.displayFamily; weight: Font.DemiBold; letterSpacing: -.1 }
                }
                Item { Layout.fillWidth: true }
                ChromeIconButton {
                    systemName: "x"
                    isSmall: true
                    iconSize: 18
                    help: qsTr("Close")
                    ground: Theme.surface
                    onClicked: sheet.close()
                }
            }
            Banner {
                visible: sheet.preferences.storeError !== ""
                Layout.fillWidth: true
                Layout.leftMargin: sheet.margin
                Layout.rightMargin: sheet.margin
                Layout.bottomMargin: 10
                isError: true
                iconName: "alert-circle"
                //: %1 is the system's own reason, as "No space left on device"
                title: qsTr("The setting could not be stored: %1").arg(sheet.preferences.storeError)
            }
            ScrollArea {
                id: area
                readonly property TemplatesPane shownTemplates: pane.item as TemplatesPane
                readonly property bool canGoBack: shownTemplates !== null && shownTemplates.canGoBack
                Layout.fillWidth: true
                Layout.fillHeight: true
                contentHeight: pane.height + sheet.margin + 4
                Loader {
                    id: pane
                    x: sheet.margin
                    y: 4
                    width: area.width - 2 * sheet.margin
                    height: Math.max(implicitHeight, area.height - sheet.margin - 4)
                    sourceComponent: sheet.currentTab.pane
                    onLoaded: area.contentY = 0
                }
            }
        }
    }
}
