// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick
import QtQuick.Dialogs
import Varlo

/// The desktop's choosers of files and of a folder, or Qt's own where it has none.
Item {
    id: choosers

    property RenamerViewModel batch
    property SettingsModels settings
    property var folderPanel: null
    property var nameFilters: []
    function chooseFiles() { files.open(); }
    function chooseFolder() { folder.open(); }
    /// Where files may be renamed; the panel waits for one of its two answers.
    function askForFolder(startFolder: url) {
        access.currentFolder = startFolder;
        access.open();
    }

    function chooseGrantedFolder() {
        granted.currentFolder = settings.startFolder;
        granted.open();
    }
    function chooseWatchedFolder() {
        watched.currentFolder = settings.startFolder;
        watched.open();
    }

    FileDialog {
        id: files
        title: qsTr("Add Files…")
        fileMode: FileDialog.OpenFiles
        nameFilters: choosers.nameFilters
        onAccepted: choosers.batch.addUrls(selectedFiles)
    }
    FolderDialog {
        id: access
        title: choosers.folderPanel ? choosers.folderPanel.message : ""
        acceptLabel: choosers.folderPanel ? choosers.folderPanel.confirmation : ""
        onAccepted: choosers.folderPanel.choose(selectedFolder)
        onRejected: choosers.folderPanel.decline()
    }
    FolderDialog {
        id: granted
        //: Open-panel message for granting access to one specific folder
        title: qsTr("Choose a folder to let Varlo rename the files inside it.")
        //: Open-panel confirm button granting folder access
        acceptLabel: qsTr("Allow")
        onAccepted: choosers.settings.folders.add(selectedFolder)
    }
    FolderDialog {
        id: watched
        title: qsTr("Choose Folder…")
        //: Confirm button of the chooser of the watched folder
        acceptLabel: qsTr("Choose")
        onAccepted: {
            choosers.settings.folders.add(selectedFolder);
            choosers.settings.preferences.chooseWatchFolder(selectedFolder);
        }
    }
    FolderDialog {
        id: folder
        title: qsTr("Select Folder…")
        onAccepted: choosers.batch.addUrls([selectedFolder])
    }
}
