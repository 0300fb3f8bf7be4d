// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick
import Varlo

Item {
    id: area

    required property WholeText whole

    HoverHandler { id: hover }
    Tip { text: area.whole.text; isWanted: hover.hovered }
}
