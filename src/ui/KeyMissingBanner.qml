// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick
import Varlo

/// Names were asked for without a key, and the way to give one.
Banner {
    id: banner

    required property var contentView

    iconName: "key"
    title: qsTr("No API key set.")
    below: Label {
        text: qsTr("Paste your own API key from your chosen provider.")
        size: 13
        color: "#5E4A22"
    }
    buttons: SecondaryButton {
        isSmall: true
        ground: Theme.warnTint
        text: qsTr("Use your own provider")
        onClicked: banner.contentView.uiState.showingProvider = true
    }
}
