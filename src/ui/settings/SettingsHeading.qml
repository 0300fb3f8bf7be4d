// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick
import Varlo

/// The title of one section of a pane.
Label {
    size: 13
    font.weight: Font.DemiBold
    bottomPadding: -6
}
