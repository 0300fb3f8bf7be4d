// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick
import QtQuick.Templates as T
import Varlo

T.ToolTip {
    required property Tip tip

    parent: tip.parent
    x: Math.round((tip.parent.width - width) / 2)
    y: tip.parent.height + 6
    implicitWidth: Math.min(420, contentItem.implicitWidth + 20)
    implicitHeight: contentItem.implicitHeight + 10
    margins: 8
    padding: 5
    leftPadding: 10
    rightPadding: 10
    delay: 500
    visible: tip.isWanted && tip.text !== ""
    contentItem: Label { text: tip.text; size: 12; color: Theme.surface; wrapMode: Text.Wrap }
    background: Rectangle { color: Theme.ink; radius: 7 }
}
