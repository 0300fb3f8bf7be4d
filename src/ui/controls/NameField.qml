// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick
import Varlo

/// The proposed name of a file, with its extension behind it, which cannot be edited. Entering it by keyboard selects
/// the whole name; Esc gives back the name as it was when editing began.
FocusScope {
    id: field

    required property string name
    required property string extension ///< with its dot; "" for none
    property string currentName ///< what the file is called now; read aloud
    property bool isWorking: false ///< the name is being made
    property bool isAnimated: false
    readonly property bool isEditing: input.activeFocus
    readonly property bool canUndoTyping: input.canUndo
    signal edited(string name)
    signal accepted(bool backwards)
    signal escaped ///< Esc, with nothing to give back
    signal stepped(int by)
    function undoTyping() { input.undo(); }
    function edit() {
        input.forceActiveFocus(Qt.TabFocusReason);
        input.selectAll();
    }
    /// The keyboard's row then is the field's, and no longer the field.
    function leave() { input.focus = false; }
    /// Uncovers the name from left to right.
    function reveal() {
        if (isAnimated && Theme.isAnimated)
            revealing.restart();
    }

    property string nameBefore
    property real uncovered: 1

    implicitHeight: Theme.text(34)
    activeFocusOnTab: false
    onNameChanged: if (input.text !== name) input.text = name
    Component.onCompleted: input.text = name

    NumberAnimation {
        id: revealing
        target: field
        property: "uncovered"
        from: 0
        to: 1
        duration: 240
        easing.type: Easing.OutCubic
    }

    Rectangle {
        anchors { fill: parent; margins: -3 }
        visible: field.isEditing
        radius: 12
        color: Theme.accentTint2
    }
    Rectangle {
        anchors.fill: parent
        radius: 9
        color: field.isWorking ? "transparent" : Theme.surface
        border.width: field.isEditing ? 2 : 1
        border.color: field.isEditing ? Theme.accent
            : field.isWorking ? Theme.line : hover.hovered ? Theme.control : Theme.lineStrong
    }
    HoverHandler { id: hover; cursorShape: field.isWorking ? Qt.ArrowCursor : Qt.IBeamCursor }
    TapHandler {
        enabled: !field.isWorking
        onTapped: if (!input.activeFocus) {
            input.forceActiveFocus(Qt.MouseFocusReason);
            input.cursorPosition = input.positionAt(point.position.x - input.x, input.height / 2);
        }
    }

    Item {
        visible: !field.isWorking
        anchors { fill: parent; leftMargin: 10; rightMargin: 10 }
        clip: true

        Item {
            height: parent.height
            width: parent.width * field.uncovered
            clip: field.uncovered < 1

            TextInput {
                id: input
                readonly property real room: field.width - 20 - suffix.width
                anchors.verticalCenter: parent.verticalCenter
                width: text === "" ? room : Math.min(Math.ceil(contentWidth) + 2, room)
                clip: contentWidth > room
                autoScroll: true
                selectByMouse: true
                activeFocusOnTab: !field.isWorking && field.visible
                color: Theme.ink
                selectionColor: Theme.accentTint2
                selectedTextColor: Theme.ink
                font.pixelSize: Theme.text(14)
                renderType: Text.NativeRendering
                cursorDelegate: Rectangle {
                    width: 2
                    visible: input.cursorVisible
                    color: Theme.accent
                }
                Accessible.role: Accessible.EditableText
                Accessible.name: qsTr("Suggested name")
                Accessible.description: field.currentName + " " + field.extension
                Accessible.onPressAction: field.edit()

                onActiveFocusChanged: {
                    if (!activeFocus) {
                        deselect();
                        cursorPosition = 0;
                        return;
                    }
                    field.nameBefore = text;
                    if (focusReason === Qt.TabFocusReason || focusReason === Qt.BacktabFocusReason)
                        selectAll();
                }
                property int focusReason: Qt.OtherFocusReason
                onTextEdited: field.edited(text)
                Keys.onPressed: event => {
                    switch (event.key) {
                    case Qt.Key_Return:
                    case Qt.Key_Enter:
                        if (event.modifiers & Qt.ControlModifier)
                            return;
                        event.accepted = true;
                        field.accepted(event.modifiers & Qt.ShiftModifier);
                        break;
                    case Qt.Key_Escape:
                        event.accepted = true;
                        if (text === field.nameBefore) {
                            field.escaped();
                        } else {
                            text = field.nameBefore;
                            field.edited(text);
                            selectAll();
                        }
                        break;
                    case Qt.Key_Up:
                    case Qt.Key_Down:
                        event.accepted = true;
                        field.stepped(event.key === Qt.Key_Up ? -1 : 1);
                        break;
                    }
                }
            }
            Words {
                visible: input.text === "" && input.preeditText === ""
                anchors.verticalCenter: parent.verticalCenter
                width: input.room
                text: qsTr("Type a name…")
                color: Theme.ink3
                elide: Text.ElideRight
            }
            Words {
                id: suffix
                x: input.text === "" ? input.room : Math.min(input.contentWidth, input.room)
                anchors.verticalCenter: parent.verticalCenter
                text: field.extension
                color: Theme.ink3
            }
        }
    }
    Rectangle {
        visible: hover.hovered && !field.isEditing && !field.isWorking
        anchors { right: parent.right; rightMargin: 1; top: parent.top; bottom: parent.bottom; margins: 1 }
        width: 34
        radius: 8
        color: Theme.surface
        Icon {
            anchors { right: parent.right; rightMargin: 9; verticalCenter: parent.verticalCenter }
            name: "pencil"
            size: 15
            color: Theme.ink2
        }
    }

    Loader {
        anchors.fill: parent
        active: field.isWorking
        sourceComponent: Item {
            clip: true
            Rectangle {
                x: 10
                anchors.verticalCenter: parent.verticalCenter
                width: (parent.width - 20) * .62
                height: 8
                radius: 4
                color: Theme.fill
            }
            Rectangle {
                id: sweeper
                x: field.width * .24
                anchors.bottom: parent.bottom
                width: field.width * .38
                height: 2
                radius: 1
                color: Theme.accent
                SequentialAnimation on x {
                    running: field.isWorking && field.visible && Theme.isAnimated
                    loops: Animation.Infinite
                    NumberAnimation {
                        from: 9
                        to: Math.max(9, field.width * .62 - 9)
                        duration: Theme.sweep / 2
                        easing.type: Easing.InOutSine
                    }
                    NumberAnimation {
                        from: Math.max(9, field.width * .62 - 9)
                        to: 9
                        duration: Theme.sweep / 2
                        easing.type: Easing.InOutSine
                    }
                }
            }
        }
    }
}
