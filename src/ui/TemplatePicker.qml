// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick
import Varlo

/// Chooses the template of the next suggestions; below the choices, what names would look like.
OptionPicker {
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
    popoverFooter: Qt.resolvedUrl("TemplatePreview.qml")
}
