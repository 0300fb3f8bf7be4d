// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick
import Varlo

/// The mark alone; the row around it is the control.
Rectangle {
    property bool isOn: false

    width: 16
    height: 16
    radius: 8
    color: Theme.surface
    border { width: isOn ? 5 : 1.5; color: isOn ? Theme.accent : Theme.control; pixelAligned: false }
}
