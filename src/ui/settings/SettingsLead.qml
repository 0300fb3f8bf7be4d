// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick
import QtQuick.Layouts
import Varlo

/// What a pane or a section is about.
Label {
    Layout.fillWidth: true
    Layout.maximumWidth: Theme.text(520)
    color: Theme.ink2
    wrapMode: Text.Wrap
    lineHeight: Theme.text(20)
    lineHeightMode: Text.FixedHeight
}
