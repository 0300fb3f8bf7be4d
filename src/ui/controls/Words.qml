// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick
import Varlo

/// Text of one size and weight that belongs to something that is read aloud itself. Never interprets what it shows:
/// names and messages come from strangers.
Text {
    property int size: 14

    textFormat: Text.PlainText
    color: Theme.ink
    font.pixelSize: Theme.text(size)
    renderType: Text.NativeRendering
    verticalAlignment: Text.AlignVCenter
}
