// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick
import Varlo

/// The window's next step while `isNextStep`, else the same pill in white.
BaseButton {
    property bool isNextStep: true
    property bool isBig: false

    isFilled: isNextStep
    implicitHeight: Theme.text(isBig ? 44 : 38)
    radius: height / 2
    leftPadding: isBig ? 28 : 20
    rightPadding: leftPadding
    spacing: 8
    textSize: isBig ? 15 : 14
    font.weight: Font.DemiBold
    ground: Theme.paper
}
