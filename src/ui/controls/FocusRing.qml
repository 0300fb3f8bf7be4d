// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick
import Varlo

/// Shown around its parent after keyboard use; not even read before.
Loader {
    id: ring

    property bool isShown: false
    property real controlRadius: 9
    property color ground: Theme.surface

    anchors.fill: parent
    onIsShownChanged: {
        if (isShown)
            setSource("FocusRingLines.qml", { ring: ring });
        else
            source = "";
    }
}
