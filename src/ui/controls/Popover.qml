// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick
import QtQuick.Templates as T
import Varlo

/// A small white sheet below the control that opened it. Moves rather than leave the window.
T.Dialog { // of all popups the one whose title assistive technology is told
    id: popover

    y: parent ? parent.height + 6 : 0
    padding: 6
    margins: 8
    implicitHeight: contentItem.implicitHeight + topPadding + bottomPadding
    focus: true
    closePolicy: T.Popup.CloseOnEscape | T.Popup.CloseOnPressOutside

    enter: Transition {
        NumberAnimation { property: "opacity"; from: 0; to: 1; duration: Theme.base; easing.type: Easing.OutCubic }
    }
    exit: Transition {
        NumberAnimation { property: "opacity"; from: 1; to: 0; duration: Theme.base; easing.type: Easing.InCubic }
    }
    background: Shadow {
        radius: 14
        level: 2
        Rectangle {
            anchors.fill: parent
            radius: 14
            color: Theme.surface
            border { width: 1; color: "#1A342C20" }
        }
    }
}
