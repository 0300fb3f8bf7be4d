// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick
import Varlo

/// The part of a row that comes with a proposed name: the name and the button that applies it.
Item {
    id: naming

    required property FileRow row
    readonly property alias nameField: field

    Icon {
        visible: !naming.row.isNarrow
        x: 66 + naming.row.namesWidth + 12
        anchors.verticalCenter: parent.verticalCenter
        name: "arrow-right"
        size: 18
        color: Theme.lineStrong
    }
    NameField {
        id: field
        focus: true
        x: naming.row.isNarrow ? 66 : 66 + naming.row.namesWidth + 42
        y: naming.row.isNarrow ? Theme.text(58) : (naming.row.height - height) / 2
        width: naming.row.isNarrow ? naming.row.width - 66 - 14 - 12 - naming.row.actionWidth
            : naming.row.fieldRoom - naming.row.namesWidth
        name: naming.row.suggestedName
        extension: naming.row.extension
        currentName: naming.row.fileName
        isWorking: naming.row.isWorking
        isAnimated: naming.row.isAnimated
        onEdited: name => naming.row.nameEdited(name)
        onAccepted: backwards => naming.row.accepted(backwards)
        onEscaped: naming.row.escaped()
        onStepped: by => naming.row.stepped(by)
    }
    SecondaryButton {
        visible: naming.row.hasNameField
        x: naming.row.width - 14 - naming.row.actionWidth
        y: naming.row.isNarrow ? Theme.text(60) : (naming.row.height - height) / 2
        isSmall: true
        enabled: naming.row.canRename
        text: qsTr("Rename")
        description: naming.row.fileName + " → " + naming.row.suggestedName + naming.row.extension
        onClicked: naming.row.renameRequested()
    }
}
