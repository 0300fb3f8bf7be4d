// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick
import Qt.labs.platform as Desktop

/// The same menu where the desktop shows the menus of all windows in one place. Loaded there alone: elsewhere the
/// module has nothing to show it with. Its entries name no keys: they would be taken from the window's own shortcuts.
Desktop.MenuBar {
    id: bar

    required property var contentView

    Desktop.Menu {
        title: "Varlo"
        Desktop.MenuItem {
            text: qsTr("Check for Updates…")
            enabled: bar.contentView.updater !== null && bar.contentView.updater.canCheckForUpdates
            onTriggered: bar.contentView.updater.checkForUpdates()
        }
        Desktop.MenuSeparator { }
        Desktop.MenuItem {
            text: qsTr("Settings…")
            enabled: !bar.contentView.hasSheet
            onTriggered: bar.contentView.uiState.showingSettings = true
        }
        Desktop.MenuSeparator { }
        Desktop.MenuItem {
            text: qsTr("Undo")
            onTriggered: bar.contentView.undo(bar.contentView.activeFocusItem)
        }
    }
}
