// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick

/// What a choice is made of that is no button to assistive technology: Qt Quick's own buttons tell it that they are
/// buttons, whatever role they are given. Whoever uses it sets Accessible.role and Accessible.name.
Item {
    id: pressable

    property alias hovered: hover.hovered
    property bool isFocusShown: false ///< the keyboard came here by itself
    signal clicked
    /// Takes the keyboard, with the ring around it or without.
    function takeFocus(isShown: bool) {
        forceActiveFocus(Qt.OtherFocusReason);
        isFocusShown = isShown;
    }

    onActiveFocusChanged: isFocusShown = activeFocus && !tap.pressed
    Accessible.focusable: true
    Accessible.focused: activeFocus
    Accessible.onPressAction: clicked()
    Accessible.onToggleAction: clicked()
    Keys.onReturnPressed: clicked()
    Keys.onEnterPressed: clicked()
    Keys.onSpacePressed: clicked()

    HoverHandler { id: hover }
    TapHandler {
        id: tap
        onPressedChanged: if (pressed) pressable.takeFocus(false)
        onTapped: pressable.clicked()
    }
}
