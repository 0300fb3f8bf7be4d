// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick
import QtQuick.Templates as T
import Varlo

/// The menu bar that F10 or Alt brings up. It is there for as long as its menu is open.
Rectangle {
    id: bar

    required property var contentView
    property bool isShown: false
    function toggle() {
        if (isShown) {
            menu.close();
            return;
        }
        isShown = true;
        menu.open();
        menu.currentIndex = menu.itemAt(0).enabled ? 0 : 2; // what can be chosen, by arrow keys from there
    }

    implicitHeight: Theme.text(32)
    color: Theme.surface
    Accessible.role: Accessible.MenuBar
    Accessible.name: qsTr("Menu bar")

    Rectangle {
        anchors { left: parent.left; right: parent.right; bottom: parent.bottom }
        height: 1
        color: Theme.line
    }
    Rectangle {
        id: title
        x: 8
        anchors.verticalCenter: parent.verticalCenter
        width: word.implicitWidth + 20
        height: Theme.text(24)
        radius: 6
        color: Theme.accentTint
        Label { id: word; anchors.centerIn: parent; text: "Varlo"; size: 13; color: Theme.accentInk }

        Binding {
            target: menu.contentItem.parent.Accessible // of the popup's own item, which a menu's title does not reach
            property: "name"
            value: word.text
        }
        T.Menu {
            id: menu

            component Line: T.MenuSeparator {
                implicitHeight: 13
                padding: 6
                leftPadding: 10
                rightPadding: 10
                contentItem: Rectangle { implicitWidth: 218; implicitHeight: 1; color: Theme.line }
            }

            x: -2
            y: title.height + 6
            padding: 6
            margins: 6
            width: 250
            height: contentItem.implicitHeight + 12
            closePolicy: T.Popup.CloseOnEscape | T.Popup.CloseOnPressOutside
            onClosed: bar.isShown = false
            contentItem: ListView {
                implicitHeight: contentHeight
                model: menu.contentModel
                currentIndex: menu.currentIndex
                interactive: false
            }
            background: Shadow {
                radius: 14
                level: 2
                Rectangle {
                    anchors.fill: parent
                    radius: 14
                    color: Theme.surface
                    border { width: 1; color: "#1A342C20" }
                }
            }

            MenuEntry {
                text: qsTr("Check for Updates…")
                enabled: bar.contentView.updater !== null && bar.contentView.updater.canCheckForUpdates
                onTriggered: bar.contentView.updater.checkForUpdates()
            }
            Line { }
            MenuEntry { text: qsTr("Settings…"); keys: "Ctrl+,"; onTriggered: bar.contentView.uiState.showingSettings = true }
            Line { }
            MenuEntry { text: qsTr("Undo"); keys: "Ctrl+Z"; onTriggered: bar.contentView.undo(bar.contentView.focusBeforeMenu) }
        }
    }
}
