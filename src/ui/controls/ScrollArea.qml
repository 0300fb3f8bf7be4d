// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick
import QtQuick.Templates as T
import Varlo

/// What may be taller than its place. Follows the keyboard.
Flickable {
    id: area

    readonly property Item focusItem: Window.activeFocusItem

    property bool showsEnd: false ///< something that matters is there

    onContentHeightChanged: if (showsEnd) contentY = Math.max(0, contentHeight - height)
    function isWithin(item: Item): bool {
        for (let above = item; above; above = above.parent) {
            if (above === contentItem)
                return true;
        }
        return false;
    }
    onFocusItemChanged: {
        if (!isWithin(focusItem))
            return;
        const top = focusItem.mapToItem(contentItem, 0, 0).y;
        const room = 12;
        if (top < contentY + room)
            contentY = Math.max(0, top - room);
        else if (top + focusItem.height > contentY + height - room)
            contentY = Math.max(0, Math.min(contentHeight, top + focusItem.height + room) - height);
    }

    clip: true
    boundsBehavior: Flickable.StopAtBounds
    T.ScrollBar.vertical: ScrollThumb { }
}
