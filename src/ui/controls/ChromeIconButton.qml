// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick
import Varlo

/// A button of the window's frame that is an icon alone; its help is its name.
BaseButton {
    required property string systemName ///< the icon

    property bool isSmall: false

    implicitWidth: isSmall ? 30 : 36
    implicitHeight: implicitWidth
    leftPadding: 0
    rightPadding: 0
    radius: isSmall ? 8 : 10
    iconName: systemName
    iconSize: 20
    isOutlined: false
    rest: "transparent"
    hover: Theme.fill
    press: Theme.fillPressed
    ink: hovered ? Theme.ink : Theme.ink2
    ground: Theme.paper
}
