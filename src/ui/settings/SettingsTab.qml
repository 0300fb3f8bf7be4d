// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick
import Varlo

/// One of the tabs at the side.
Pressable {
    id: tab

    required property string tabId
    required property string iconName
    required property string text
    property Component pane: null ///< what it shows
    property bool isCurrent: false

    implicitHeight: Theme.text(36)
    activeFocusOnTab: isCurrent || activeFocus
    Accessible.role: Accessible.PageTab
    Accessible.name: text
    Accessible.selectable: true
    Accessible.selected: isCurrent

    Rectangle {
        anchors.fill: parent
        radius: 9
        color: tab.isCurrent ? Theme.surface : tab.hovered ? Theme.fill : "transparent"
        border { width: tab.isCurrent ? 1 : 0; color: Theme.line }
        FocusRing { isShown: tab.isFocusShown; controlRadius: 9; ground: Theme.paper }
    }
    Icon {
        id: icon
        x: 10
        anchors.verticalCenter: parent.verticalCenter
        name: tab.iconName
        size: 19
        color: tab.isCurrent ? Theme.accent : Theme.ink2
    }
    Words {
        anchors {
            left: icon.right
            leftMargin: 10
            right: parent.right
            rightMargin: 10
            verticalCenter: parent.verticalCenter
        }
        text: tab.text
        elide: Text.ElideRight
        font.weight: tab.isCurrent ? Font.DemiBold : Font.Medium
        color: tab.isCurrent ? Theme.ink : Theme.ink2
    }
}
