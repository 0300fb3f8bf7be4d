// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick
import QtQuick.Layouts
import Varlo

/// What a step of the introduction says.
Label {
    Layout.fillWidth: true
    Layout.maximumWidth: Theme.text(384)
    Layout.topMargin: 10
    size: 16
    color: Theme.ink2
    wrapMode: Text.Wrap
    lineHeight: Theme.text(24)
    lineHeightMode: Text.FixedHeight
}
