// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick
import QtQuick.Layouts
import Varlo

/// One rename: the name given, the name before, when, and the way back.
Rectangle {
    id: row

    required property int index
    required property string toName
    required property string fromName
    required property string time
    required property bool isReverted
    required property bool isSelected
    property bool isCurrent: false
    signal toggled
    signal revertRequested

    implicitHeight: Theme.text(52)
    color: isSelected ? Theme.accentTint : hover.hovered ? Theme.sunken : "transparent"
    border { width: isCurrent ? 2 : 0; color: Theme.accent }
    HoverHandler { id: hover }
    TapHandler { onTapped: row.toggled() }
    Accessible.role: Accessible.ListItem
    Accessible.name: toName + ", " + qsTr("was") + " " + fromName + ", " + time
        + (isReverted ? ", " + qsTr("Reverted") : "")

    RowLayout {
        anchors { fill: parent; leftMargin: 19; rightMargin: 20 }
        spacing: 7
        CheckMark {
            opacity: row.isReverted ? 0 : 1
            enabled: !row.isReverted
            label: row.toName
            checked: row.isSelected
            onToggled: {
                row.toggled();
                checked = Qt.binding(() => row.isSelected);
            }
        }
        ColumnLayout {
            Layout.fillWidth: true
            spacing: 0
            Words {
                Layout.fillWidth: true
                text: Format.isolated(row.toName)
                font { weight: Font.Medium; strikeout: row.isReverted }
                color: row.isReverted ? Theme.ink3 : Theme.ink
                elide: Text.ElideMiddle
            }
            Words {
                Layout.fillWidth: true
                text: qsTr("was") + " " + Format.isolated(row.fromName)
                size: 12
                color: Theme.ink3
                elide: Text.ElideMiddle
            }
        }
        Words { text: row.time; size: 12; color: Theme.ink3 }
        Item {
            Layout.leftMargin: 8
            implicitWidth: Math.max(100, revert.implicitWidth)
            implicitHeight: revert.implicitHeight
            SecondaryButton {
                id: revert
                visible: !row.isReverted
                anchors.right: parent.right
                isSmall: true
                text: qsTr("Revert")
                description: row.toName
                onClicked: row.revertRequested()
            }
            Row {
                visible: row.isReverted
                anchors { right: parent.right; rightMargin: 4; verticalCenter: parent.verticalCenter }
                spacing: 5
                Icon { name: "arrow-back-up"; size: 15; color: Theme.ink3 }
                Label { text: qsTr("Reverted"); size: 12; font.weight: Font.Medium; color: Theme.ink3 }
            }
        }
    }
}
