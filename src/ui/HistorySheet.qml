// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import Varlo

/// The renames made, newest first and by day, each with the way back.
Sheet {
    id: sheet

    required property HistoryView history

    title: qsTr("History")
    wishedWidth: 720
    wishedHeight: 600
    onOpened: search.forceActiveFocus(Qt.OtherFocusReason)

    contentItem: ColumnLayout {
        spacing: 0

        Keys.onPressed: event => {
            const inSearch = search.activeFocus;
            if (event.matches(StandardKey.Find)) {
                search.forceActiveFocus(Qt.ShortcutFocusReason);
            } else if (event.matches(StandardKey.SelectAll) && !inSearch) {
                sheet.history.selectAll();
            } else {
                return;
            }
            event.accepted = true;
        }

        SheetHeader {
            Layout.fillWidth: true
            title: sheet.title
            onCloseRequested: sheet.close()
            beside: [
                Item { Layout.fillWidth: true },
                Field {
                    id: search
                    Layout.preferredWidth: 250
                    label: qsTr("Search history")
                    placeholderText: qsTr("Search history")
                    iconName: "search"
                    onTextChanged: sheet.history.searchText = text
                    Keys.onEscapePressed: event => {
                        event.accepted = text !== "";
                        text = "";
                    }
                    Keys.onDownPressed: view.forceActiveFocus(Qt.TabFocusReason)
                }
            ]
        }
        Banner {
            visible: sheet.history.lastError !== ""
            Layout.fillWidth: true
            Layout.leftMargin: 24
            Layout.rightMargin: 24
            isError: true
            iconName: "alert-circle"
            title: sheet.history.lastError
        }

        Item {
            Layout.fillWidth: true
            Layout.fillHeight: true

            ListView {
                id: view
                anchors.fill: parent
                model: sheet.history
                clip: true
                reuseItems: true
                boundsBehavior: Flickable.StopAtBounds
                keyNavigationEnabled: true
                highlightMoveDuration: 0
                activeFocusOnTab: count > 0
                T.ScrollBar.vertical: ScrollThumb { }
                section.property: "day"
                section.delegate: Label {
                    required property string section
                    leftPadding: 24
                    topPadding: 14
                    bottomPadding: 6
                    text: section
                    size: 12
                    font.weight: Font.DemiBold
                    color: Theme.ink3
                }
                Keys.onSpacePressed: if (currentIndex >= 0) sheet.history.toggle(currentIndex)
                Accessible.role: Accessible.List
                Accessible.name: sheet.title

                delegate: HistoryRow {
                    ListView.onPooled: visible = false // else assistive technology goes on finding it
                    ListView.onReused: visible = true
                    width: view.width
                    isCurrent: ListView.isCurrentItem && view.activeFocus
                    onToggled: sheet.history.toggle(index)
                    onRevertRequested: sheet.history.revert(index)
                }
            }
            Column {
                visible: view.count === 0
                anchors.centerIn: parent
                spacing: 14
                Rectangle {
                    anchors.horizontalCenter: parent.horizontalCenter
                    width: 72
                    height: 72
                    radius: 36
                    color: Theme.fill
                    Icon { anchors.centerIn: parent; name: "history"; size: 30 }
                }
                Label {
                    anchors.horizontalCenter: parent.horizontalCenter
                    text: qsTr("No renames yet")
                    size: 15
                    font.weight: Font.Medium
                    color: Theme.ink3
                }
            }
        }

        Rectangle {
            visible: sheet.history.selectedCount > 0
            Layout.fillWidth: true
            implicitHeight: Theme.text(52)
            color: Theme.accentTint2
            RowLayout {
                anchors { fill: parent; leftMargin: 19; rightMargin: 20 }
                spacing: 7
                CheckMark {
                    label: count.text
                    checked: true
                    onToggled: {
                        sheet.history.deselectAll();
                        checked = true;
                    }
                }
                Words {
                    id: count
                    Layout.fillWidth: true
                    text: sheet.history.selectedCount + qsTr(" selected")
                    size: 13
                    font.weight: Font.DemiBold
                }
                SecondaryButton {
                    isGhost: true
                    ground: Theme.accentTint2
                    text: qsTr("Deselect")
                    onClicked: sheet.history.deselectAll()
                }
                PrimaryButton {
                    implicitHeight: Theme.text(30)
                    ground: Theme.accentTint2
                    iconName: "arrow-back-up"
                    iconSize: 15
                    text: qsTr("Revert Selected")
                    onClicked: sheet.history.revertSelected()
                }
            }
        }
        Rectangle {
            Layout.fillWidth: true
            implicitHeight: 1
            color: sheet.history.selectedCount > 0 ? "transparent" : Theme.line
        }
        RowLayout {
            Layout.fillWidth: true
            Layout.margins: 12
            Layout.bottomMargin: 14
            Layout.leftMargin: 24
            Layout.rightMargin: 20
            spacing: 5
            Label { text: qsTr("Renames saved:"); size: 13; color: Theme.ink2 }
            Label {
                Layout.fillWidth: true
                text: sheet.history.savedCount
                size: 13
                font.weight: Font.DemiBold
            }
            SecondaryButton {
                isDestructive: true
                isSmall: true
                text: qsTr("Clear History…")
                enabled: sheet.history.savedCount > 0
                onClicked: confirmation.active = true
            }
        }
    }

    Loader {
        id: confirmation
        active: false
        onLoaded: (item as Sheet).open()
        sourceComponent: ConfirmDialog {
            title: qsTr("Clear History…")
            confirmText: qsTr("Clear")
            onConfirmed: sheet.history.clear()
            onClosed: confirmation.active = false
        }
    }
}
