// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick
import Varlo

/// One of the line icons, tinted.
Image {
    required property string name
    property color color: Theme.ink2
    property int size: 18

    width: size
    height: size
    source: name === "" ? "" : "image://icons/" + name + "/" + color.toString().slice(1)
    sourceSize { width: size * Theme.pixelRatio; height: size * Theme.pixelRatio }
}
