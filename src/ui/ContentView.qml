// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick
import Varlo

/// The main window: files come in, names are reviewed, files are renamed.
Window {
    id: window

    required property RenamerViewModel batch
    required property HistoryView history
    required property TemplateChoices templates
    property var watcher: null
    property var watchedFolder: null
    property var folderPanel: null
    property QuickLook quickLook: null
    required property SettingsModels settings
    required property AppUIState uiState
    property UpdaterModel updater: null

    readonly property bool isNarrow: width < 880 * Theme.textScale
    readonly property bool isEmpty: batch.count === 0
    readonly property bool hasSheet: sheets.hasOpenSheet || !root.completed ///< something lies over the content
    readonly property bool isWatching: watcher !== null && watcher.isWatching
    readonly property bool hasNotice: batch.isNothingRenameable || isKeyMissing || isWatching
    readonly property bool isKeyMissing: batch.isKeyMissing && !settings.provider.hasKey
    property bool isDropTargeted: false
    property bool isOpening: false ///< with files, which will be there at once: until then it does not offer to add some

    title: "Varlo"
    width: 1080
    height: 720
    minimumWidth: 640
    minimumHeight: 480
    color: Theme.paper

    component Command: Shortcut {
        enabled: !window.hasSheet
        context: Qt.WindowShortcut
    }
    Command { sequence: "Ctrl+O"; onActivated: window.chooseFiles() }
    Command { sequence: "Ctrl+Shift+O"; onActivated: window.chooseFolder() }
    Command { sequences: ["Ctrl+Return", "Ctrl+Enter"]; onActivated: window.batch.suggest() }
    Command { sequences: ["Ctrl+Shift+Return", "Ctrl+Shift+Enter"]; onActivated: sheets.renameEverything() }
    Command { sequences: ["Ctrl+H", "Ctrl+Y"]; onActivated: window.uiState.showingHistory = true }
    Command { sequence: "Ctrl+R"; onActivated: if (content.list) content.list.renameCurrent() }
    Command { sequence: "Ctrl+,"; onActivated: window.uiState.showingSettings = true }
    Command { sequence: "F10"; onActivated: window.toggleMenu() }
    Shortcut { sequences: ["Ctrl+Q", "Ctrl+W"]; onActivated: window.close() }
    Connections {
        target: window.uiState
        function onMenuRequested() { if (!window.hasSheet) window.toggleMenu(); }
        function onUndoRequested() { window.undo(window.activeFocusItem); }
    }
    Command { sequence: "F6"; onActivated: window.goToRegion(1) }
    Command { sequence: "Shift+F6"; onActivated: window.goToRegion(-1) }

    readonly property string historyError: history.lastError
    onHistoryErrorChanged: if (historyError !== "") uiState.showingHistory = true // Ctrl+Z can fail too

    property Item focusBeforeMenu: null
    function toggleMenu() {
        focusBeforeMenu = activeFocusItem;
        if (!menu.bar)
            menu.setSource("AppMenu.qml", { contentView: window });
        menu.bar.toggle();
    }
    /// Takes back what was typed in the field that has the keyboard, else the latest rename that stands.
    function undo(focused: var) {
        if (focused && focused.canUndo === true)
            focused.undo();
        else if (!hasSheet || uiState.showingHistory)
            history.revertLatest();
    }
    function chooseFiles() { sheets.chooseFiles(); }
    function chooseFolder() { sheets.chooseFolder(); }
    function showTemplates() {
        settings.preferences.settingsSelectedTab = "templates";
        uiState.showingSettings = true;
    }
    function goToRegion(by: int) {
        const regions = Array.from([topBar, notices, panel, bottomBar]).filter(item => item.visible && item.height > 0);
        let at = regions.findIndex(region => {
            for (let item = window.activeFocusItem; item; item = item.parent) {
                if (item === region)
                    return true;
            }
            return false;
        });
        at = (at + by + regions.length) % regions.length;
        if (regions[at] === panel && content.list)
            content.list.goTo(Math.max(0, content.list.currentIndex), false);
        else
            regions[at].nextItemInFocusChain(true).forceActiveFocus(Qt.TabFocusReason);
    }

    Timer {
        interval: 300 // of disks that sleep
        running: window.isOpening
        onTriggered: window.isOpening = false
    }
    RootView {
        id: root
        anchors.fill: parent
        z: 1
        content: main
        preferences: window.settings.preferences
        finder: window.settings.finder
    }
    Item { // by anchors: the library of layouts would be read before the first frame
        id: main
        anchors.fill: parent

        Loader {
            id: menu
            readonly property var bar: item ///< an AppMenu
            visible: bar !== null && bar.isShown
            width: parent.width
            height: visible ? bar.implicitHeight : 0
        }
        TopBar {
            id: topBar
            anchors.top: menu.bottom
            width: parent.width
            height: Theme.text(56)
            batch: window.batch
            languageOptions: window.uiState.languageOptions
            templates: window.templates.choices
            isNarrow: window.isNarrow
            onTemplateEditRequested: window.showTemplates()
            onTemplateCreateRequested: {
                window.settings.templateEditor.create();
                window.showTemplates();
            }
            onHistoryRequested: window.uiState.showingHistory = true
            onSettingsRequested: window.uiState.showingSettings = true
            onTemplateDeleteRequested: id => sheets.confirmTemplateDeletion(id)
        }

        Column {
            id: notices
            anchors { top: topBar.bottom; left: parent.left; right: parent.right; leftMargin: 16; rightMargin: 16 }
            height: visible ? implicitHeight + 8 : 0
            spacing: 8
            visible: window.hasNotice

            // Not there before they are needed: a hidden layout whose words change language goes in circles.
            component Notice: LateLoader {
                file: ""
                given: ({ contentView: window })
                visible: item !== null
                width: parent.width
            }
            Notice { file: "NothingRenameableBanner.qml"; isWanted: window.batch.isNothingRenameable }
            Notice { file: "KeyMissingBanner.qml"; isWanted: window.isKeyMissing }
            Notice { file: "WatcherStrip.qml"; isWanted: window.isWatching }
        }

        Rectangle {
            id: panel
            anchors {
                top: notices.bottom
                bottom: bottomBar.top
                left: parent.left
                right: parent.right
                leftMargin: 16
                rightMargin: 16
            }
            radius: 14
            color: window.isDropTargeted && window.isEmpty ? "#EDF5F7" : Theme.surface
            border { width: 1; color: Theme.line }

            FocusScope { // for one or the other takes the keyboard only where this has it
                anchors { fill: parent; margins: 1 }
                focus: true

                LateLoader {
                    isWanted: window.isEmpty && !window.isOpening
                    file: "DropZone.qml"
                    given: ({ contentView: window })
                    anchors.fill: parent
                    focus: isWanted
                }
                Loader {
                    id: content
                    readonly property var list: item
                    active: !window.isEmpty
                    anchors.fill: parent
                    focus: active
                    sourceComponent: FileList {
                        id: fileList
                        focus: true
                        batch: window.batch
                        statusLabels: window.uiState.statusLabels
                        isNarrow: window.isNarrow
                        onQuickLookRequested: row => {
                            if (window.quickLook)
                                window.quickLook.open(row, Theme.pixelRatio);
                        }
                        Connections { // the keyboard goes on where the look ended
                            id: looking
                            property int latestRow: 0
                            target: window.quickLook
                            function onRowChanged() { looking.latestRow = window.quickLook.row; }
                            function onIsOpenChanged() {
                                if (!window.quickLook.isOpen && looking.latestRow < fileList.batch.count)
                                    fileList.goTo(looking.latestRow, false);
                            }
                        }
                    }
                }
            }
            Loader {
                anchors { fill: parent; margins: 1 }
                source: window.isDropTargeted && !window.isEmpty ? "DropHighlight.qml" : ""
            }
        }

        BottomBar {
            id: bottomBar
            visible: !window.isEmpty
            anchors.bottom: parent.bottom
            width: parent.width
            height: visible ? implicitHeight : 16
            batch: window.batch
            isNarrow: window.isNarrow
            isTight: window.width < 700 * Theme.textScale
            onAddFilesRequested: sheets.chooseFiles()
            onRenameAllRequested: sheets.renameEverything()
        }
    }

    DropArea {
        anchors.fill: parent
        enabled: !window.hasSheet
        keys: ["text/uri-list"]
        onContainsDragChanged: window.isDropTargeted = containsDrag
        onDropped: drop => {
            window.isDropTargeted = false;
            drop.acceptProposedAction();
            window.batch.addUrls(drop.urls);
        }
    }

    Loader {
        active: window.uiState.hasGlobalMenu
        Component.onCompleted: setSource("GlobalMenu.qml", { contentView: window })
    }
    Sheets {
        id: sheets
        contentView: window
    }

    // At the end, since what is made last takes effect first: nothing is drawn for another scale before.
    Binding { target: Theme; property: "textScale"; value: window.uiState.textScale }
    Binding { target: Theme; property: "isAnimated"; value: window.uiState.isAnimated }
    Binding { target: Format; property: "locale"; value: window.uiState.localeName }
    Binding { target: Theme; property: "pixelRatio"; value: window.Screen.devicePixelRatio }
}
