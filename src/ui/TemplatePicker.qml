// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick
import QtQuick.Layouts
import Varlo

/// Chooses the template of the next suggestions; below the choices, what names would look like.
OptionPicker {
    id: picker

    required property var templates ///< list of { id, name, isBuiltIn, example }
    signal createRequested
    signal deleteRequested(string id)

    label: qsTr("Template:")
    caption: qsTr("Choose template")
    chevron: "chevron-down"
    popoverWidth: 344
    options: Array.from([{ id: "", name: qsTr("Default"), detail: qsTr("The AI picks the name structure"),
        isApart: true }])
        .concat(templates)
    editHelpFor: option => option.id === "" ? "" : option.name
    editDescription: qsTr("Templates")
    Accessible.name: qsTr("Choose template")

    popoverFooter: ColumnLayout {
        spacing: 6
        PopoverAction {
            Layout.fillWidth: true
            iconName: "plus"
            text: qsTr("New Template…")
            onClicked: {
                picker.close();
                picker.createRequested();
            }
        }
        Rectangle {
            id: preview
            Layout.fillWidth: true
            readonly property string shownId: picker.isPresented && picker.highlightedId !== "" ? picker.highlightedId
                : picker.selection
            readonly property var shown: picker.templates.find(option => option.id === shownId)

            implicitHeight: lines.implicitHeight + 20
            radius: 9
            color: Theme.sunken

            ColumnLayout {
                id: lines
                anchors { fill: parent; margins: 10; leftMargin: 12; rightMargin: 12 }
                spacing: 3
                RowLayout {
                    Icon { visible: !preview.shown; name: "sparkles"; size: 15; color: Theme.ink3 }
                    Label {
                        Layout.fillWidth: true
                        text: preview.shown ? qsTr("Preview") : qsTr("Default settings")
                        size: 11
                        font.weight: Font.DemiBold
                        color: Theme.ink3
                    }
                    LinkButton {
                        visible: preview.shown !== undefined && !preview.shown.isBuiltIn
                        text: qsTr("Delete Template…")
                        ink: Theme.bad
                        textSize: 11
                        iconName: "trash"
                        iconSize: 14
                        isIconFirst: true
                        implicitHeight: 20
                        onClicked: {
                            picker.close();
                            picker.deleteRequested(preview.shownId);
                        }
                    }
                }
                Label {
                    Layout.fillWidth: true
                    text: preview.shown ? preview.shown.example
                        : qsTr("No fixed template — the AI picks the best name structure for each file.")
                    size: 12
                    font.family: preview.shown ? Theme.codeFamily : Theme.family
                    font.weight: preview.shown ? Font.Medium : Font.Normal
                    color: preview.shown ? Theme.ink : Theme.ink3
                    wrapMode: Text.Wrap
                }
            }
        }
    }
}
