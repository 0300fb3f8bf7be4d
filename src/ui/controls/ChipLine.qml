// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick
import Varlo

/// As many chips as fit, then "+n" for the rest.
Item {
    id: line

    property var tags: []
    readonly property int shownCount: {
        let left = width;
        for (let i = 0; i < tags.length; ++i) {
            left -= metrics.advanceWidth(tags[i]) + 16;
            const rest = tags.length - i - 1;
            if (left < (rest > 0 ? 30 : -4))
                return i;
        }
        return tags.length;
    }

    implicitHeight: Theme.text(18)

    FontMetrics {
        id: metrics
        font.pixelSize: Theme.text(11)
        font.weight: Font.Medium
    }
    Row {
        spacing: 4
        Repeater {
            model: line.tags.slice(0, line.shownCount)
            Chip {
                required property string modelData
                text: modelData
            }
        }
        Chip {
            visible: line.shownCount < line.tags.length
            isQuiet: true
            text: "+" + (line.tags.length - line.shownCount)
            HoverHandler { id: rest }
            Tip { text: line.tags.slice(line.shownCount).join(", "); isWanted: rest.hovered }
        }
    }
}
