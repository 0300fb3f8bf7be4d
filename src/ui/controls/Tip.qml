// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick

/// A tooltip of its parent, not even read before it is first wanted.
Loader {
    id: tip

    property string text
    property bool isWanted: false

    onIsWantedChanged: {
        if (isWanted && text !== "" && !item)
            setSource("TipPopup.qml", { tip: tip });
    }
}
