// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick
import QtQuick.Templates as T
import Varlo

/// Chooses one of a few by pills side by side. `options` is a list of { id, name }.
Rectangle {
    id: pillSwitch

    property var options: []
    property string selection
    signal chosen(string id)

    implicitWidth: pills.implicitWidth + 6
    implicitHeight: Theme.text(36)
    radius: height / 2
    color: Theme.fill

    function step(by: int) {
        const index = options.findIndex(option => option.id === selection) + by;
        if (index < 0 || index >= options.length)
            return;
        chosen(options[index].id);
        choices.itemAt(index).forceActiveFocus(Qt.TabFocusReason);
    }

    Row {
        id: pills
        anchors.centerIn: parent
        spacing: 2
        Repeater {
            id: choices
            model: pillSwitch.options
            T.RadioButton {
                id: pill
                required property var modelData
                readonly property bool isOn: modelData.id === pillSwitch.selection
                implicitWidth: label.implicitWidth + 32
                implicitHeight: pillSwitch.height - 6
                hoverEnabled: true
                focusPolicy: isOn ? Qt.StrongFocus : Qt.ClickFocus
                checked: isOn
                onToggled: checked = Qt.binding(() => pill.isOn) // who owns the choice decides
                onClicked: pillSwitch.chosen(modelData.id)
                Keys.onRightPressed: pillSwitch.step(1)
                Keys.onLeftPressed: pillSwitch.step(-1)
                Accessible.name: modelData.name
                Accessible.description: modelData.detail ?? ""
                Accessible.onPressAction: clicked()
                Accessible.onToggleAction: clicked()
                contentItem: Words {
                    id: label
                    text: pill.modelData.name
                    size: 13
                    horizontalAlignment: Text.AlignHCenter
                    font.weight: pill.isOn ? Font.DemiBold : Font.Medium
                    color: pill.isOn ? Theme.ink : Theme.ink2
                }
                background: Rectangle {
                    radius: height / 2
                    color: pill.isOn ? Theme.surface : pill.hovered ? Theme.fillPressed : "transparent"
                    Rectangle {
                        visible: pill.isOn
                        z: -1
                        y: 1
                        width: parent.width
                        height: parent.height
                        radius: height / 2
                        color: "#2E342C20"
                    }
                    FocusRing { isShown: pill.visualFocus; controlRadius: pill.height / 2; ground: Theme.fill }
                }
            }
        }
    }
}
