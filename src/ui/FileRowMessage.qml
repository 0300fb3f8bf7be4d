// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick
import Varlo

/// Why a file has no new name.
Words {
    required property FileRow row

    text: row.message
    size: 12
    color: Theme.bad
    lineHeightMode: Text.FixedHeight
    lineHeight: Theme.text(15)
    wrapMode: Text.Wrap
    maximumLineCount: row.isNarrow ? 1 : 2
    elide: Text.ElideRight
    WholeText { }
}
