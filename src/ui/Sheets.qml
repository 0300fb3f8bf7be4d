// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick
import QtQuick.Templates as T

/// What opens over the main window, each made when it is first asked for.
Item {
    id: sheets

    required property var contentView
    readonly property var uiState: contentView.uiState
    readonly property bool hasOpenSheet: history.isShown || formats.isShown || update.isShown || deletion.isShown
        || quickLook.isShown || forgetting.isShown || settings.isShown || provider.isShown
    function chooseFiles() { loadedChoosers().chooseFiles(); }
    function chooseFolder() { loadedChoosers().chooseFolder(); }
    function loadedChoosers(): var {
        choosers.source = "Choosers.qml";
        return choosers.item;
    }
    function confirmTemplateDeletion(id: string) {
        deletion.templateId = id;
        deletion.ask({ title: qsTr("Delete Template…"), confirmText: qsTr("Delete") });
    }

    /// Asks first where the history could not hold it all.
    function renameEverything() {
        if (contentView.batch.forgottenCount > 0)
            forgetting.ask({
                title: qsTr("Rename All"),
                iconName: "history",
                message: qsTr("The history keeps the newest %1 renames, so the first %2 of these cannot be taken back later.")
                    .arg(contentView.batch.keptCount).arg(contentView.batch.forgottenCount),
                confirmText: qsTr("Rename All")
            });
        else
            contentView.batch.renameEverything();
    }

    component OnDemand: Loader {
        id: onDemand
        property string file ///< of the sheet; not even read before it is wanted
        property var given: ({}) ///< its properties
        property bool isWanted: false
        readonly property bool isShown: sheet !== null && sheet.visible
        readonly property T.Popup sheet: item as T.Popup
        signal dismissed
        active: false
        onIsWantedChanged: {
            if (isWanted) {
                if (file !== "" && !sheet)
                    setSource(file, given);
                active = true;
                sheet.open();
            } else if (sheet) {
                sheet.close();
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
        file: "HistorySheet.qml"
        given: ({ history: sheets.contentView.history })
    }
    OnDemand {
        id: settings
        isWanted: sheets.uiState.showingSettings
        onDismissed: {
            sheets.uiState.showingSettings = false;
            sheets.contentView.settings.templateEditor.close();
            active = false;
        }
        file: "settings/SettingsView.qml"
        given: ({ models: sheets.contentView.settings, templates: sheets.contentView.templates })
    }
    Connections {
        target: settings.item
        function onTemplateDeleteRequested(id) { sheets.confirmTemplateDeletion(id); }
        function onFolderRequested() { sheets.loadedChoosers().chooseGrantedFolder(); }
        function onWatchFolderRequested() { sheets.loadedChoosers().chooseWatchedFolder(); }
        function onFormatsRequested() { sheets.uiState.showingFormats = true; }
        function onProviderRequested() { sheets.uiState.showingProvider = true; }
    }
    OnDemand {
        id: provider
        isWanted: sheets.uiState.showingProvider
        onDismissed: {
            sheets.uiState.showingProvider = false;
            active = false; // and what was typed is gone with it
        }
        file: "settings/ProviderKeySheet.qml"
        given: ({ provider: sheets.contentView.settings.provider, isSecond: settings.isShown })
    }
    OnDemand {
        id: formats
        isWanted: sheets.uiState.showingFormats
        onDismissed: {
            sheets.uiState.showingFormats = false;
            active = false; // its words may be in another language the next time, and it may lie over a sheet
        }
        file: "FormatsSheet.qml"
        given: ({ sections: sheets.uiState.formatSections, isSecond: settings.isShown })
    }
    OnDemand {
        id: quickLook
        isWanted: sheets.contentView.quickLook?.isOpen ?? false
        onDismissed: sheets.contentView.quickLook.close()
        file: "QuickLookSheet.qml"
        given: ({ look: sheets.contentView.quickLook })
    }
    OnDemand {
        id: update
        isWanted: sheets.contentView.updater !== null && sheets.contentView.updater.isShown
        onDismissed: sheets.contentView.updater.dismiss()
        file: "UpdateSheet.qml"
        given: ({ updater: sheets.contentView.updater })
    }
    component Question: Loader {
        readonly property T.Popup sheet: item as T.Popup
        readonly property bool isShown: sheet !== null && sheet.visible
        function ask(properties: var) {
            setSource("ConfirmDialog.qml", properties);
            sheet.open();
        }
    }
    Question {
        id: deletion
        property string templateId
    }
    Connections {
        target: deletion.item
        function onConfirmed() {
            sheets.contentView.templates.remove(deletion.templateId);
            const editor = sheets.contentView.settings.templateEditor;
            if (editor.templateId === deletion.templateId)
                editor.close();
        }
        function onClosed() { deletion.source = ""; }
    }
    Question { id: forgetting }
    Connections {
        target: forgetting.item
        function onConfirmed() { sheets.contentView.batch.renameEverything(); }
        function onClosed() { forgetting.source = ""; }
    }
    Connections {
        target: sheets.contentView.folderPanel
        function onAsked(folder) {
            sheets.loadedChoosers().askForFolder(folder);
        }
    }
    Loader {
        id: choosers
        onLoaded: {
            item.batch = sheets.contentView.batch;
            item.settings = sheets.contentView.settings;
            item.folderPanel = sheets.contentView.folderPanel;
            item.nameFilters = sheets.uiState.nameFilters;
        }
    }
}
