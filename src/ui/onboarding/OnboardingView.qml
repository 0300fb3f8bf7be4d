// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick
import Varlo

/// The introduction of the first start: welcome, the permission where the system has a Finder, ready. There is no way
/// back to an earlier step.
Rectangle {
    id: view

    required property FinderAccess finder
    signal finished

    readonly property var steps: finder.isOffered ? ["welcome", "permission", "ready"] : ["welcome", "ready"]
    property int index: 0
    readonly property string step: steps[index]
    readonly property bool isNarrow: width < 900 * Theme.textScale

    function goOn() {
        if (index === steps.length - 1) {
            finished();
            return;
        }
        ++index;
        arrival.restart();
    }

    color: Theme.paper
    Accessible.role: Accessible.Pane
    Accessible.name: "Varlo"

    Component { id: welcome; WelcomeStep { isNarrow: view.isNarrow; onContinued: view.goOn() } }
    Component {
        id: permission
        PermissionStep { finder: view.finder; isNarrow: view.isNarrow; onContinued: view.goOn() }
    }
    Component { id: ready; ReadyStep { isNarrow: view.isNarrow; onContinued: view.goOn() } }

    ScrollArea {
        id: left
        readonly property real margin: view.isNarrow ? 64 : 72
        width: view.isNarrow ? parent.width : picture.x
        height: parent.height
        contentHeight: Math.max(height, page.implicitHeight + 96)
        Loader {
            id: page
            x: left.margin
            y: (left.contentHeight - height) / 2 - (view.isNarrow ? 12 : 0)
            width: left.width - left.margin - (view.isNarrow ? 64 : 56)
            sourceComponent: ({ welcome: welcome, permission: permission, ready: ready })[view.step]

            ParallelAnimation {
                id: arrival
                NumberAnimation {
                    target: page
                    property: "x"
                    from: left.margin + 24
                    to: left.margin
                    duration: Theme.story
                    easing.type: Easing.InOutCubic
                }
                NumberAnimation { target: page; property: "opacity"; from: 0; to: 1; duration: Theme.story }
                onFinished: page.x = Qt.binding(() => left.margin)
            }
        }
    }
    Row {
        x: left.margin
        anchors { bottom: parent.bottom; bottomMargin: view.isNarrow ? 28 : 36 }
        spacing: 6
        Accessible.ignored: true
        Repeater {
            model: view.steps
            Rectangle {
                required property int index
                width: index === view.index ? 24 : 8
                height: 8
                radius: 4
                color: index === view.index ? Theme.accent : Theme.lineStrong
                Behavior on width { NumberAnimation { duration: Theme.story; easing.type: Easing.InOutCubic } }
            }
        }
    }
    OnboardingPicture {
        id: picture
        visible: !view.isNarrow
        x: parent.width - width - 16
        y: 16
        width: 500
        height: parent.height - 32
        step: view.step
    }
}
