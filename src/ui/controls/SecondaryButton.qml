// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick
import Varlo

BaseButton {
    property bool isSmall: false
    property bool isGhost: false ///< neither ground nor outline
    property bool isDestructive: false

    implicitHeight: Theme.text(isSmall ? 30 : 34)
    radius: isSmall ? 8 : 9
    leftPadding: isGhost ? 10 : isSmall ? 12 : 14
    rightPadding: leftPadding
    isOutlined: !isGhost
    rest: isGhost ? "transparent" : Theme.surface
    hover: isGhost ? Theme.fill : Theme.sunken
    press: isGhost ? Theme.fillPressed : Theme.fill
    ink: isDestructive ? Theme.bad : isGhost ? Theme.ink2 : Theme.ink
}
