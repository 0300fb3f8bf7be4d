// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick
import QtQuick.Layouts
import Varlo

/// Below the choices of templates: a way to make one, and what names would look like.
ColumnLayout {
    id: footer

    required property var picker ///< the TemplatePicker

    spacing: 6
    PopoverAction {
        Layout.fillWidth: true
        iconName: "plus"
        text: qsTr("New Template…")
        onClicked: {
            footer.picker.close();
            footer.picker.createRequested();
        }
    }
    Rectangle {
        id: preview
        Layout.fillWidth: true
        readonly property string shownId: footer.picker.isPresented && footer.picker.highlightedId !== ""
            ? footer.picker.highlightedId : footer.picker.selection
        readonly property var shown: footer.picker.templates.find(option => option.id === shownId)

        implicitHeight: lines.implicitHeight + 20
        radius: 9
        color: Theme.sunken

        ColumnLayout {
            id: lines
            anchors { fill: parent; margins: 10; leftMargin: 12; rightMargin: 12 }
            spacing: 3
            RowLayout {
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
                        footer.picker.close();
                        footer.picker.deleteRequested(preview.shownId);
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
