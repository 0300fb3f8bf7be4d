// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick
import QtQuick.Templates as T
import Varlo

/// A white sheet over the window, never larger than the window less 32. Esc closes it, and the focus goes back.
T.Dialog { // of all popups the one whose title assistive technology is told
    id: sheet

    property real wishedWidth: 720
    property real wishedHeight: 600
    property bool isSecond: false ///< lies over another sheet
    property Item opener: null ///< what had the focus; Qt leaves it with the window

    parent: T.Overlay.overlay
    anchors.centerIn: parent
    width: parent ? Math.min(wishedWidth, parent.width - 32) : wishedWidth
    height: parent ? Math.min(wishedHeight, parent.height - 32) : wishedHeight
    modal: true
    focus: true
    padding: 0
    closePolicy: T.Popup.CloseOnEscape
    onAboutToShow: opener = parent.Window.activeFocusItem
    onClosed: {
        const holder = parent ? parent.Window.activeFocusItem : null;
        if (opener && (!holder || holder === parent.Window.contentItem))
            opener.forceActiveFocus(Qt.PopupFocusReason);
    }

    enter: Transition {
        NumberAnimation { property: "opacity"; from: 0; to: 1; duration: Theme.slow; easing.type: Easing.OutQuint }
        NumberAnimation { property: "scale"; from: .97; to: 1; duration: Theme.slow; easing.type: Easing.OutQuint }
    }
    exit: Transition {
        NumberAnimation { property: "opacity"; from: 1; to: 0; duration: Theme.slow; easing.type: Easing.InCubic }
    }
    T.Overlay.modal: Rectangle { color: sheet.isSecond ? Theme.scrim2 : Theme.scrim }
    background: Shadow {
        radius: 18
        level: 3
        Rectangle { anchors.fill: parent; radius: 18; color: Theme.surface }
    }
}
