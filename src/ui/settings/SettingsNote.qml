// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick
import QtQuick.Layouts
import Varlo

/// A remark in small type behind an icon.
RowLayout {
    id: note

    required property string iconName
    required property string text
    property int size: 12

    Layout.fillWidth: true
    Layout.maximumWidth: Theme.text(520)
    spacing: 8
    Icon {
        Layout.alignment: Qt.AlignTop
        Layout.topMargin: 1
        name: note.iconName
        size: note.size + 3
        color: Theme.ink3
    }
    Label {
        Layout.fillWidth: true
        text: note.text
        size: note.size
        color: Theme.ink3
        wrapMode: Text.Wrap
        lineHeight: Theme.text(17)
        lineHeightMode: Text.FixedHeight
    }
}
