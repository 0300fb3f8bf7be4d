// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick
import QtQuick.Templates as T
import Varlo

/// The batch in its order. Rows are made for what is in sight and used again.
FocusScope {
    id: list

    required property RenamerViewModel batch
    required property var statusLabels ///< the words of every status: the longest makes the column
    property bool isNarrow: false
    readonly property alias currentIndex: view.currentIndex
    signal quickLookRequested(int row)
    readonly property FileRow currentRow: view.currentItem as FileRow

    /// Goes on to the next row that has a name to review, or stays.
    function goOn(backwards: bool) {
        const next = batch.nextRowWithName(view.currentIndex, backwards);
        goTo(next < 0 ? view.currentIndex : next, next >= 0);
    }
    function goTo(row: int, editing: bool) {
        view.currentIndex = row;
        view.positionViewAtIndex(row, ListView.Contain);
        if (editing && currentRow && currentRow.hasNameField) {
            currentRow.editName();
            return;
        }
        if (currentRow)
            currentRow.leaveName(); // else the list hands the keyboard on to the field
        view.forceActiveFocus(Qt.OtherFocusReason);
    }
    function renameCurrent() {
        if (currentRow && currentRow.canRename)
            batch.renameRow(view.currentIndex);
    }

    Accessible.role: Accessible.List
    Accessible.name: qsTr("%n file(s)", "", view.count)

    FontMetrics {
        id: statusMetrics
        font.pixelSize: Theme.text(12)
        font.weight: Font.Medium
    }
    FontMetrics {
        id: buttonMetrics
        font.pixelSize: Theme.text(13)
        font.weight: Font.Medium
    }
    readonly property real statusWidth: Math.max(...statusLabels.map(
        label => Math.ceil(statusMetrics.advanceWidth(label)))) + 37
    readonly property real actionWidth: Math.ceil(buttonMetrics.advanceWidth(qsTr("Rename"))) + 26

    ListView {
        id: view

        anchors { fill: parent; topMargin: 5; bottomMargin: 5 }
        model: list.batch
        clip: true
        focus: true
        activeFocusOnTab: true
        reuseItems: true
        cacheBuffer: 240
        pixelAligned: true
        boundsBehavior: Flickable.StopAtBounds
        highlightFollowsCurrentItem: true
        highlightMoveDuration: 0
        highlightResizeDuration: 0
        highlight: Item {
            z: 2
            Rectangle {
                visible: view.activeFocus && view.isByKeyboard && !(list.currentRow && list.currentRow.isEditing)
                anchors { fill: parent; leftMargin: 4; rightMargin: 4; topMargin: 2; bottomMargin: 2 }
                radius: 10
                color: "transparent"
                border { width: 2; color: Theme.accent }
            }
        }
        keyNavigationEnabled: false
        T.ScrollBar.vertical: ScrollThumb { }
        Connections {
            target: list.batch
            // Else the view calls off a row that is being made when its number is no longer one, and Qt complains.
            function onModelAboutToBeReset() { view.model = null; }
            function onModelReset() { view.model = Qt.binding(() => list.batch); }
        }

        property bool isByKeyboard: false
        onActiveFocusChanged: if (activeFocus && currentIndex < 0 && count > 0) currentIndex = 0

        delegate: FileRow {
            ListView.onPooled: visible = false // else assistive technology goes on finding it
            ListView.onReused: visible = true
            width: view.width
            isNarrow: list.isNarrow
            isCurrent: ListView.isCurrentItem && view.activeFocus && view.isByKeyboard
            isAnimated: view.count <= 200
            statusWidth: list.statusWidth
            actionWidth: list.actionWidth
            onNameEdited: name => list.batch.setSuggestedName(index, name)
            onRenameRequested: list.batch.renameRow(index)
            onQuickLookRequested: {
                view.currentIndex = index;
                list.quickLookRequested(index);
            }
            onEntered: view.currentIndex = index
            onAccepted: backwards => list.goOn(backwards)
            onEscaped: list.goTo(index, false)
            onStepped: by => list.goTo(Math.max(0, Math.min(view.count - 1, index + by)), true)
        }

        Keys.onPressed: event => {
            const page = Math.max(1, Math.floor(height / (currentItem ? currentItem.height : 60)) - 1);
            const steps = {
                [Qt.Key_Up]: -1, [Qt.Key_Down]: 1, [Qt.Key_PageUp]: -page, [Qt.Key_PageDown]: page,
                [Qt.Key_Home]: -count, [Qt.Key_End]: count
            };
            isByKeyboard = true;
            if (event.key in steps) {
                event.accepted = true;
                list.goTo(Math.max(0, Math.min(count - 1, currentIndex + steps[event.key])), false);
            } else if (event.key === Qt.Key_F2 || ((event.key === Qt.Key_Return || event.key === Qt.Key_Enter)
                    && event.modifiers === Qt.NoModifier)) {
                event.accepted = true;
                list.goTo(currentIndex, true);
            } else if (event.key === Qt.Key_Space && searched === "") { // within a search it is one more letter
                event.accepted = true;
                if (currentIndex >= 0)
                    list.quickLookRequested(currentIndex);
            } else if (event.text.length === 1 && event.text >= " " && event.modifiers === Qt.NoModifier) {
                event.accepted = true;
                searched += event.text;
                searchPause.restart();
                const found = list.batch.rowBeginningWith(searched, currentIndex);
                if (found >= 0)
                    list.goTo(found, false);
            }
        }
        property string searched
        Timer { id: searchPause; interval: 900; onTriggered: view.searched = "" }
    }
}
