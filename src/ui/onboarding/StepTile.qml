// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick
import Varlo

Rectangle {
    required property string iconName

    implicitWidth: 36
    implicitHeight: 36
    radius: 10
    color: Theme.accentTint
    Icon { anchors.centerIn: parent; name: parent.iconName; size: 20; color: Theme.accent }
}
