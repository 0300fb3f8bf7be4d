// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick
import QtQuick.Layouts
import Varlo

/// What a step of the introduction is called.
Label {
    property bool isNarrow: false

    Layout.fillWidth: true
    Layout.topMargin: isNarrow ? 16 : 24
    size: isNarrow ? 28 : 34
    font { family: Theme.displayFamily; weight: Font.DemiBold; letterSpacing: -.4 }
    wrapMode: Text.Wrap
    Accessible.role: Accessible.Heading
}
