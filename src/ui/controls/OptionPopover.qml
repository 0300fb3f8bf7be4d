// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick
import Varlo

/// The rows of an OptionPicker.
Popover {
    id: popover

    required property var picker ///< an OptionPicker

    parent: popover.picker
    title: popover.picker.caption
    implicitWidth: popover.picker.popoverWidth
    onOpened: rows.focusChosen()
    onClosed: popover.picker.highlightedId = ""
    contentItem: Column {
        id: rows
        function focusChosen() {
            for (let i = 0; i < choices.count; ++i) {
                if (choices.itemAt(i).isSelected)
                    choices.itemAt(i).forceActiveFocus(Qt.PopupFocusReason);
            }
        }
        Words {
            visible: popover.picker.caption !== ""
            leftPadding: 10
            topPadding: 8
            bottomPadding: 6
            text: popover.picker.caption
            size: 12
            font.weight: Font.DemiBold
            color: Theme.ink3
        }
        Repeater {
            id: choices
            model: popover.picker.options
            PopoverPickerRow {
                required property var modelData
                readonly property bool isHighlighted: hovered || activeFocus
                width: parent.width
                isSelected: modelData.id === popover.picker.selection
                name: modelData.name
                detail: modelData.detail ?? ""
                isApart: modelData.isApart ?? false
                editHelp: popover.picker.editHelpFor(modelData)
                editDescription: popover.picker.editDescription
                onIsHighlightedChanged: if (isHighlighted) popover.picker.highlightedId = modelData.id
                onClicked: {
                    popover.picker.close();
                    popover.picker.chosen(modelData.id);
                }
                onEditRequested: {
                    popover.picker.close();
                    popover.picker.editRequested(modelData.id);
                }
            }
        }
        LateLoader {
            width: parent.width
            isWanted: file !== ""
            file: popover.picker.popoverFooter
            given: ({ picker: popover.picker })
        }
    }
}
