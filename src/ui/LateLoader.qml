// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick

/// Loads a file for as long as it is wanted. What a Loader holds as a component is read with the document around it,
/// shown or not, which the start of the window would pay for.
Loader {
    required property string file ///< beside this one
    required property bool isWanted
    property var given: ({}) ///< its properties

    function follow() {
        if (!isWanted)
            source = "";
        else if (!item)
            setSource(file, given);
    }
    onIsWantedChanged: follow()
    Component.onCompleted: follow()
}
