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
    readonly property var nameField: naming.part ? naming.part.nameField : null ///< a NameField
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

    Words {
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
        WholeText { text: row.fileName }
    }

    Item { // one line below the name, by priority
        id: detail
        x: 66
        y: current.y + current.height + Theme.text(row.isNarrow ? 5 : 1)
        width: row.isNarrow ? row.width - 80 : row.namesWidth
        height: Math.max(Theme.text(20), row.isFailed ? special.height - 1 : 0)

        Words {
            visible: special.file === ""
            anchors.verticalCenter: parent.verticalCenter
            width: parent.width
            text: row.previousName !== "" ? qsTr("was") + " " + Format.isolated(row.previousName)
                : Format.place(row.folderName, row.byteSize)
            size: 12
            color: Theme.ink3
            elide: Text.ElideMiddle
        }
        Loader {
            id: special
            readonly property string file: row.isFailed ? "FileRowMessage.qml"
                : row.previousName === "" && row.suggestedTags.length > 0 ? "FileRowTags.qml" : ""
            anchors.verticalCenter: parent.verticalCenter
            width: parent.width
            onFileChanged: {
                if (file !== "")
                    setSource(file, { row: row });
                else
                    source = "";
            }
        }
    }
    Loader {
        id: naming
        readonly property bool isWanted: row.showsField
        readonly property var part: item ///< a FileRowNaming
        anchors.fill: parent
        focus: true
        onIsWantedChanged: {
            if (isWanted)
                setSource("FileRowNaming.qml", { row: row });
            else
                source = "";
        }
    }
    StatusPill {
        id: pill
        status: row.status
        label: row.statusLabel
        x: row.isNarrow ? row.width - 14 - width : row.width - 14 - row.actionWidth - 12 - row.statusWidth
        y: row.isNarrow && row.showsField ? Theme.text(9) : (row.height - height) / 2
    }
}
