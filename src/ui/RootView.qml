// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick
import Varlo

/// Shows the introduction until it is completed, then `content`.
Item {
    id: root

    required property PreferenceModel preferences
    required property FinderAccess finder
    required property Item content
    readonly property bool completed: preferences.hasCompletedOnboarding

    function introduce() {
        if (completed)
            introduction.source = "";
        else
            introduction.setSource("onboarding/OnboardingView.qml", { finder: finder }); // not even read later on
    }
    onCompletedChanged: introduce()
    Component.onCompleted: introduce()

    Binding { target: root.content; property: "visible"; value: root.completed }
    Loader { id: introduction; anchors.fill: parent }
    Connections {
        target: introduction.item
        function onFinished() { root.preferences.hasCompletedOnboarding = true; }
    }
}
