// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick

/// Shows on hovering what its parent, a Text, has no room for.
Loader {
    id: whole

    readonly property Text shortened: parent as Text
    readonly property bool isWanted: shortened.truncated
    property string text: shortened.text

    anchors.fill: parent
    onIsWantedChanged: {
        if (isWanted)
            setSource("WholeTextTip.qml", { whole: whole });
        else
            source = "";
    }
}
