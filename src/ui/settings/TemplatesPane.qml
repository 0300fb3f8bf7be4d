// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick
import QtQuick.Layouts
import Varlo

/// The naming templates, or the one of them that is being edited.
Loader {
    id: pane

    required property SettingsModels models
    required property var templates ///< list of { id, name, isBuiltIn, structure }
    readonly property TemplateEditor editor: models.templateEditor
    readonly property bool canGoBack: editor.templateId !== ""
    property string lastEdited ///< gets the keyboard when the list is back
    signal deleteRequested(string id)
    function goBack() { editor.close(); }

    sourceComponent: canGoBack ? editorComponent : listComponent

    Component {
        id: editorComponent
        TemplateEditorSection {
            editor: pane.editor
            onDeleteRequested: pane.deleteRequested(pane.editor.templateId)
            Component.onCompleted: pane.lastEdited = editor.templateId
        }
    }
    Component {
        id: listComponent
        ColumnLayout {
            spacing: 14
            Component.onCompleted: {
                const row = pane.templates.findIndex(template => template.id === pane.lastEdited);
                if (row >= 0)
                    rows.itemAt(row).focusEdit();
            }

            SettingsLead { text: qsTr("How suggested names are built. Pick one per batch in the main window.") }
            SettingsCard {
                isTinted: true
                SettingsRow {
                    iconName: "sparkles"
                    isAccented: true
                    title: qsTr("Default settings")
                    detail: qsTr("No fixed template — the AI picks the best name structure for each file.")
                }
            }
            SettingsCard {
                Repeater {
                    id: rows
                    model: pane.templates
                    SettingsRow {
                        id: row
                        required property var modelData
                        function focusEdit() { edit.forceActiveFocus(Qt.OtherFocusReason); }
                        title: modelData.name
                        detail: modelData.structure
                        ChromeIconButton {
                            id: edit
                            isSmall: true
                            iconSize: 17
                            systemName: "pencil"
                            ground: Theme.surface
                            help: row.modelData.name
                            description: row.modelData.structure
                            onClicked: pane.editor.edit(row.modelData.id)
                        }
                    }
                }
            }
            SecondaryButton {
                iconName: "plus"
                iconSize: 17
                text: qsTr("New Template…")
                onClicked: pane.editor.create()
            }
            Item { Layout.fillHeight: true }
        }
    }
}
