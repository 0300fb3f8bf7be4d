// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick
import Varlo

/// One file of the batch, from its old name to its new one: the name now, the name proposed, its status, and the
/// button that applies it. One height for every status; below 880 pixels of window in a form of three lines.
FocusScope {
    id: row

    required property int index
    required property string fileName
    required property string extension
    required property string suggestedName
    required property var suggestedTags
    required property string previousName
    required property string folderName
    required property real byteSize
    required property string status
    required property string statusLabel
    required property string message
    required property string iconName
    required property bool hasNameField // roles: the model decides
    required property bool canRename
    property bool isNarrow: false
    property bool isCurrent: false ///< the keyboard's row
    property bool isAnimated: false
    property real statusWidth: 146
    property real actionWidth: 84
    readonly property NameField nameField: nameLoader.item as NameField
    readonly property bool isEditing: nameField !== null && nameField.isEditing
    readonly property bool canUndoTyping: isEditing && nameField.canUndoTyping
    signal nameEdited(string name)
    signal renameRequested
    signal quickLookRequested
    signal entered ///< the keyboard has come into it
    signal accepted(bool backwards)
    signal escaped
    signal stepped(int by)
    function editName() { if (nameField) nameField.edit(); }
    function leaveName() { if (nameField) nameField.leave(); }
    function undoTyping() { nameField.undoTyping(); }

    readonly property bool isWorking: status === "processing"
    readonly property bool showsField: hasNameField || isWorking
    readonly property real fieldRoom: width - 66 - 42 - 12 - statusWidth - 12 - actionWidth - 14
    readonly property real namesWidth: !showsField ? fieldRoom + 42 : Math.min(420, fieldRoom * .36 / .98)
    readonly property bool isFailed: message !== ""

    height: Theme.text(isNarrow ? 100 : 60)
    onActiveFocusChanged: if (activeFocus) entered()
    onStatusChanged: if (status === "suggested" && nameField) nameField.reveal()

    Accessible.role: Accessible.ListItem
    Accessible.name: Format.joined([fileName, statusLabel, suggestedName === "" ? "" : suggestedName + extension,
        Format.joined(suggestedTags, ", ")], ", ")
    Accessible.description: message
    Accessible.focusable: true
    Accessible.focused: isCurrent
    Accessible.onPressAction: quickLookRequested()

    Rectangle {
        visible: rowHover.hovered
        anchors.fill: parent
        color: Theme.sunken
    }
    Rectangle {
        visible: row.index > 0
        x: 66
        width: parent.width - 82
        height: 1
        color: Theme.line
    }
    HoverHandler { id: rowHover }

    Rectangle { // the kind of file
        readonly property var kind: Theme.kinds[row.iconName] ?? Theme.kinds["doc"]
        x: 16
        anchors.verticalCenter: parent.verticalCenter
        width: 38
        height: 38
        radius: 10
        color: kind.tint
        Icon { anchors.centerIn: parent; name: parent.kind.icon; size: 20; color: parent.kind.ink }
        TapHandler { onTapped: row.quickLookRequested() }
    }

    Label {
        id: current
        x: 66
        y: row.isNarrow ? (row.showsField ? Theme.text(12) : Theme.text(30))
            : (row.height - height - detail.height - 1) / 2
        width: Math.min(implicitWidth, row.isNarrow ? row.width - 66 - 14 - 10 - pill.width : row.namesWidth)
        height: Theme.text(20)
        text: Format.isolated(row.fileName)
        font.weight: Font.Medium
        elide: Text.ElideMiddle
        color: row.status === "notSupportedYet" ? Theme.ink2 : Theme.ink
        Accessible.ignored: true
        HoverHandler { id: nameHover; enabled: current.truncated }
        Tip { text: row.fileName; isWanted: nameHover.hovered }
    }

    Item { // one line below the name, by priority
        id: detail
        x: 66
        y: current.y + current.height + Theme.text(row.isNarrow ? 5 : 1)
        width: row.isNarrow ? row.width - 80 : row.namesWidth
        height: Math.max(Theme.text(20), row.isFailed ? failure.height - 1 : 0)

        Label {
            id: failure
            visible: row.isFailed
            anchors.verticalCenter: parent.verticalCenter
            width: parent.width
            text: row.message
            size: 12
            color: Theme.bad
            lineHeightMode: Text.FixedHeight
            lineHeight: Theme.text(15)
            wrapMode: Text.Wrap
            maximumLineCount: row.isNarrow ? 1 : 2
            elide: Text.ElideRight
            Accessible.ignored: true
            HoverHandler { id: messageHover; enabled: failure.truncated }
            Tip { text: row.message; isWanted: messageHover.hovered }
        }
        Loader {
            anchors.verticalCenter: parent.verticalCenter
            width: parent.width
            active: !row.isFailed && row.previousName === "" && row.suggestedTags.length > 0
            sourceComponent: ChipLine { tags: row.suggestedTags }
        }
        Label {
            visible: !row.isFailed && (row.previousName !== "" || row.suggestedTags.length === 0)
            anchors.verticalCenter: parent.verticalCenter
            width: parent.width
            text: row.previousName !== "" ? qsTr("was") + " " + Format.isolated(row.previousName)
                : Format.place(row.folderName, row.byteSize)
            size: 12
            color: Theme.ink3
            elide: Text.ElideMiddle
            Accessible.ignored: true
        }
    }

    Icon {
        visible: row.showsField && !row.isNarrow
        x: 66 + row.namesWidth + 12
        anchors.verticalCenter: parent.verticalCenter
        name: "arrow-right"
        size: 18
        color: Theme.lineStrong
    }
    Loader {
        id: nameLoader
        active: row.showsField
        focus: true
        x: row.isNarrow ? 66 : 66 + row.namesWidth + 42
        y: row.isNarrow ? Theme.text(58) : (row.height - height) / 2
        width: row.isNarrow ? row.width - 66 - 14 - 12 - row.actionWidth : row.fieldRoom - row.namesWidth
        sourceComponent: NameField {
            focus: true
            name: row.suggestedName
            extension: row.extension
            currentName: row.fileName
            isWorking: row.isWorking
            isAnimated: row.isAnimated
            onEdited: name => row.nameEdited(name)
            onAccepted: backwards => row.accepted(backwards)
            onEscaped: row.escaped()
            onStepped: by => row.stepped(by)
        }
    }
    StatusPill {
        id: pill
        status: row.status
        label: row.statusLabel
        x: row.isNarrow ? row.width - 14 - width : row.width - 14 - row.actionWidth - 12 - row.statusWidth
        y: row.isNarrow && row.showsField ? Theme.text(9) : (row.height - height) / 2
    }
    Loader {
        active: row.hasNameField
        x: row.width - 14 - row.actionWidth
        y: row.isNarrow ? Theme.text(60) : (row.height - height) / 2
        sourceComponent: SecondaryButton {
            isSmall: true
            enabled: row.canRename
            text: qsTr("Rename")
            description: row.fileName + " → " + row.suggestedName + row.extension
            onClicked: row.renameRequested()
        }
    }

    Rectangle {
        visible: row.isCurrent && !row.isEditing
        anchors { fill: parent; leftMargin: 4; rightMargin: 4; topMargin: 2; bottomMargin: 2 }
        radius: 10
        color: "transparent"
        border { width: 2; color: Theme.accent }
    }
}
