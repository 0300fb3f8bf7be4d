// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick
import QtQuick.Layouts
import Varlo

/// Nothing of what was dropped has a format that is read.
Banner {
    id: banner

    required property var contentView

    iconName: "folder-question"
    title: qsTr("Nothing here Varlo can rename.")
    below: SupportedFormatsLine {
        Layout.topMargin: -5 // the link is higher than a line of words
        Layout.bottomMargin: -5
        count: banner.contentView.uiState.supportedCount
        ink: "#5E4A22"
        linkInk: Theme.warn
        onViewAllRequested: banner.contentView.uiState.showingFormats = true
    }
    buttons: SecondaryButton {
        isSmall: true
        ground: Theme.warnTint
        text: qsTr("Dismiss")
        onClicked: banner.contentView.batch.dismissDropFeedback()
    }
}
