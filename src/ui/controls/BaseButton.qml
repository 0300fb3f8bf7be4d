// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick
import QtQuick.Templates as T
import Varlo

/// What the buttons have in common: an optional icon before a word, a filled or outlined ground, a focus ring.
T.Button {
    id: button

    property string iconName
    property int iconSize: 18
    property bool isIconTurning: false
    property bool isFilled: false
    property bool isOutlined: true
    property color ink: isFilled ? Theme.surface : Theme.ink
    property color rest: isFilled ? Theme.accent : Theme.surface
    property color hover: isFilled ? Theme.accentHover : Theme.sunken
    property color press: isFilled ? Theme.accentPressed : Theme.fill
    property color ground: Theme.surface ///< what lies behind the button
    property real radius: 9
    property int textSize: 13
    property string help ///< a tooltip
    property string description ///< what is read aloud beside the name

    implicitWidth: Math.max(28, Math.ceil(contentItem.implicitWidth) + leftPadding + rightPadding)
    implicitHeight: Theme.text(34)
    leftPadding: 14
    rightPadding: 14
    spacing: 7
    opacity: enabled ? 1 : .42
    focusPolicy: Qt.StrongFocus
    hoverEnabled: true
    font.family: Theme.family
    font.pixelSize: Theme.text(textSize)
    font.weight: isFilled ? Font.DemiBold : Font.Medium

    Accessible.role: Accessible.Button
    Accessible.name: text || help
    // Qt 6.4 tells assistive technology that every item is enabled.
    //: Read aloud in place of what a button does
    Accessible.description: enabled ? description : qsTr("Not available now")
    Accessible.onPressAction: if (enabled) clicked()
    Keys.onReturnPressed: clicked()
    Keys.onEnterPressed: clicked()

    // Else it would come up over what the button opened, until the pointer moves.
    property bool wasPressed: false
    onPressedChanged: if (pressed) wasPressed = true
    onHoveredChanged: if (!hovered) wasPressed = false
    Tip { text: button.help; isWanted: button.hovered && !button.wasPressed && button.help !== "" }

    contentItem: Item {
        implicitWidth: row.implicitWidth
        implicitHeight: row.implicitHeight

        Row {
            id: row
            anchors.centerIn: parent
            spacing: button.spacing

            Icon {
                id: sign
                anchors.verticalCenter: parent.verticalCenter
                visible: button.iconName !== ""
                name: button.iconName
                size: button.iconSize
                color: button.ink
                RotationAnimation on rotation {
                    running: button.isIconTurning && button.visible && Theme.isAnimated
                    loops: Animation.Infinite
                    from: 0
                    to: 360
                    duration: Theme.spin
                    onStopped: sign.rotation = 0
                }
            }
            Words {
                anchors.verticalCenter: parent.verticalCenter
                visible: text !== ""
                text: button.text
                font: button.font
                color: button.ink
            }
        }
    }

    background: Rectangle {
        radius: button.radius
        color: button.down ? button.press : button.hovered && button.enabled ? button.hover : button.rest
        border.width: button.isFilled || !button.isOutlined ? 0 : 1
        border.color: button.hovered && button.enabled ? Theme.lineHovered : Theme.lineStrong
        Behavior on color { ColorAnimation { duration: Theme.fast } }

        FocusRing { isShown: button.visualFocus; controlRadius: button.radius; ground: button.ground }
    }
}
