// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick
import QtQuick.Layouts
import Varlo

/// The name and the fields of one template, and what a name made by it looks like.
ColumnLayout {
    id: section

    required property TemplateEditor editor
    property int dropPlace: -1 ///< before which field the dragged one would land; -1 while none is dragged
    signal deleteRequested

    /// Before which field something at this point of the flow belongs.
    function placeAt(x: real, y: real): int {
        for (let i = 0; i < chips.count; ++i) {
            const chip = chips.itemAt(i);
            const isAbove = y < chip.y - flow.spacing / 2;
            const isInLine = !isAbove && y < chip.y + chip.height + flow.spacing / 2;
            if (isAbove || isInLine && x < chip.x + chip.width / 2)
                return i;
        }
        return chips.count;
    }
    function drop(from: int) {
        if (dropPlace >= 0)
            editor.moveField(from, dropPlace > from ? dropPlace - 1 : dropPlace);
        dropPlace = -1;
    }
    function removeField(index: int) {
        const next = index + 1 < chips.count ? index + 1 : index - 1;
        if (next >= 0)
            chips.itemAt(next).forceActiveFocus(Qt.TabFocusReason);
        else
            addButton.forceActiveFocus(Qt.TabFocusReason);
        editor.removeField(index);
    }

    spacing: 14
    Component.onCompleted: {
        if (!editor.isBuiltIn)
            nameField.forceActiveFocus(Qt.OtherFocusReason);
        else if (chips.count > 0)
            chips.itemAt(0).forceActiveFocus(Qt.OtherFocusReason);
    }

    Rectangle {
        Layout.fillWidth: true
        implicitHeight: card.implicitHeight + 36
        radius: 12
        color: Theme.sunken
        border { width: 1; color: Theme.line }

        ColumnLayout {
            id: card
            anchors { fill: parent; margins: 18 }
            spacing: 16
            Label {
                visible: section.editor.isBuiltIn
                Layout.fillWidth: true
                text: section.editor.title
                size: 16
                font.weight: Font.DemiBold
                elide: Text.ElideRight
            }
            Field {
                id: nameField
                visible: !section.editor.isBuiltIn
                Layout.fillWidth: true
                implicitHeight: Theme.text(40)
                label: qsTr("Name")
                placeholderText: qsTr("Untitled")
                text: section.editor.name
                font { pixelSize: Theme.text(16); weight: Font.DemiBold }
                onTextEdited: section.editor.name = text
            }
            Flow {
                id: flow
                Layout.fillWidth: true
                spacing: 8
                Repeater {
                    id: chips
                    model: section.editor
                    FieldChip {
                        id: chip
                        count: chips.count
                        onDragged: at => section.dropPlace = section.placeAt(x + at.x, y + at.y)
                        onDropped: section.drop(index)
                        onMoveRequested: by => section.editor.moveField(index, index + by)
                        onRemoveRequested: section.removeField(index)
                    }
                }
                SecondaryButton {
                    id: addButton
                    isGhost: true
                    iconName: "plus"
                    iconSize: 16
                    ground: Theme.sunken
                    text: qsTr("Add Field")
                    enabled: section.editor.missingFields.length > 0
                    onClicked: addition.open()
                    Popover {
                        id: addition
                        title: addButton.text
                        implicitWidth: Math.max(190, fields.implicitWidth + 12)
                        onOpened: fields.children[0].forceActiveFocus(Qt.TabFocusReason)
                        contentItem: Column {
                            id: fields
                            Repeater {
                                model: section.editor.missingFields
                                PopoverAction {
                                    required property var modelData
                                    width: parent.width
                                    text: modelData.name
                                    onClicked: {
                                        const added = modelData.id;
                                        addition.close();
                                        section.editor.addField(added);
                                    }
                                }
                            }
                        }
                    }
                }
            }
        }
        Rectangle {
            readonly property Item neighbour: section.dropPlace < 0 ? null
                : chips.itemAt(Math.min(section.dropPlace, chips.count - 1))
            readonly property bool isLast: section.dropPlace >= chips.count
            visible: neighbour !== null
            x: neighbour ? card.x + flow.x + neighbour.x + (isLast ? neighbour.width + 3 : -5) : 0
            y: neighbour ? card.y + flow.y + neighbour.y : 0
            width: 2
            height: Theme.text(34)
            radius: 1
            color: Theme.accent
        }
    }
    Rectangle {
        Layout.fillWidth: true
        implicitHeight: preview.implicitHeight + 24
        radius: 12
        color: Theme.sunken
        border { width: 1; color: Theme.line }
        ColumnLayout {
            id: preview
            anchors { fill: parent; leftMargin: 14; rightMargin: 14; topMargin: 12; bottomMargin: 12 }
            spacing: 2
            Label {
                text: qsTr("Preview")
                size: 12
                font.weight: Font.DemiBold
                color: Theme.ink3
                lineHeight: Theme.text(16)
                lineHeightMode: Text.FixedHeight
            }
            Label {
                Layout.fillWidth: true
                text: section.editor.preview
                font { family: Theme.codeFamily; weight: Font.Medium }
                wrapMode: Text.Wrap
                lineHeight: Theme.text(22)
                lineHeightMode: Text.FixedHeight
            }
        }
    }
    Item { Layout.fillHeight: true }
    SecondaryButton {
        visible: !section.editor.isBuiltIn
        isDestructive: true
        iconName: "trash"
        iconSize: 16
        text: qsTr("Delete Template…")
        onClicked: section.deleteRequested()
    }
}
