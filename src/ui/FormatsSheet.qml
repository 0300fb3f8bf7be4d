// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick
import QtQuick.Layouts
import Varlo

/// The types of file that Varlo reads, and those to come. `sections` is a list of { title, extensions, isComingSoon }.
Sheet {
    id: sheet

    property var sections: []

    title: qsTr("Supported formats")
    wishedWidth: 620
    wishedHeight: header.implicitHeight + 6 + flickable.contentHeight

    contentItem: ColumnLayout {
        spacing: 0
        SheetHeader {
            id: header
            Layout.fillWidth: true
            title: sheet.title
            onCloseRequested: sheet.close()
        }
        Flickable {
            id: flickable
            Layout.fillWidth: true
            Layout.fillHeight: true
            Layout.topMargin: 6
            contentHeight: content.implicitHeight + 26
            clip: true
            boundsBehavior: Flickable.StopAtBounds
            ColumnLayout {
                id: content
                width: parent.width
                spacing: 16
                Repeater {
                    model: sheet.sections
                    ColumnLayout {
                        id: section
                        required property var modelData
                        Layout.fillWidth: true
                        Layout.leftMargin: 24
                        Layout.rightMargin: 24
                        spacing: 7
                        Row {
                            spacing: 8
                            Label {
                                height: Theme.text(16)
                                text: section.modelData.title
                                size: 11
                                color: Theme.ink3
                                font { weight: Font.DemiBold; letterSpacing: .6; capitalization: Font.AllUppercase }
                            }
                            Rectangle {
                                visible: section.modelData.isComingSoon
                                width: soon.implicitWidth + 14
                                height: Theme.text(16)
                                radius: height / 2
                                color: Theme.warnTint
                                Label {
                                    id: soon
                                    anchors.centerIn: parent
                                    text: qsTr("Coming soon")
                                    size: 10
                                    font.weight: Font.DemiBold
                                    color: Theme.warn
                                }
                            }
                        }
                        Flow {
                            Layout.fillWidth: true
                            spacing: 6
                            Repeater {
                                model: section.modelData.extensions
                                ExtensionChip {
                                    required property string modelData
                                    text: "." + modelData
                                    isComing: section.modelData.isComingSoon
                                }
                            }
                        }
                    }
                }
            }
        }
    }
}
