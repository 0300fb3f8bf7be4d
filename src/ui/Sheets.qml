// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick
import Varlo

/// What opens over the main window, each made when it is first asked for.
Item {
    id: sheets

    required property var contentView
    readonly property var uiState: contentView.uiState
    readonly property bool hasOpenSheet: history.isShown || formats.isShown || deletion.isShown
    function chooseFiles() { choosers.source = "Choosers.qml"; choosers.item.chooseFiles(); }
    function chooseFolder() { choosers.source = "Choosers.qml"; choosers.item.chooseFolder(); }
    function confirmTemplateDeletion(id: string) {
        deletion.templateId = id;
        deletion.active = true;
    }

    component OnDemand: Loader {
        id: onDemand
        property bool isWanted: false
        readonly property bool isShown: item !== null && item.visible
        signal dismissed
        active: false
        onIsWantedChanged: {
            if (isWanted) {
                active = true;
                item.open();
            } else if (item) {
                item.close();
            }
        }
        Connections {
            target: onDemand.item
            function onClosed() { onDemand.dismissed(); }
        }
    }

    OnDemand {
        id: history
        isWanted: sheets.uiState.showingHistory
        onDismissed: {
            sheets.uiState.showingHistory = false;
            active = false; // the next time it starts without search, selection and error
            sheets.contentView.history.reset();
        }
        sourceComponent: HistorySheet { history: sheets.contentView.history }
    }
    OnDemand {
        id: formats
        isWanted: sheets.uiState.showingFormats
        onDismissed: sheets.uiState.showingFormats = false
        sourceComponent: FormatsSheet { sections: sheets.uiState.formatSections }
    }
    Loader {
        id: deletion
        property string templateId
        readonly property bool isShown: item !== null && item.visible
        active: false
        onLoaded: item.open()
        sourceComponent: ConfirmDialog {
            title: qsTr("Delete Template…")
            confirmText: qsTr("Delete")
            onConfirmed: sheets.contentView.templates.remove(deletion.templateId)
            onClosed: deletion.active = false
        }
    }
    Connections {
        target: sheets.contentView.folderPanel
        function onAsked(folder) {
            choosers.source = "Choosers.qml";
            choosers.item.askForFolder(folder);
        }
    }
    Loader {
        id: choosers
        onLoaded: {
            item.batch = sheets.contentView.batch;
            item.folderPanel = sheets.contentView.folderPanel;
            item.nameFilters = sheets.uiState.nameFilters;
        }
    }
}
