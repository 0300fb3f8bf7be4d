// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick
import Varlo

/// A field for a secret, masked. What assistive technology sees is the frame around it, for Qt would hand the text of a
/// password field over as it was typed. Qt gives such a field no name either, so its label is its description.
FocusScope {
    id: secret

    required property string label
    property alias typed: input.text ///< not "text", which assistive technology would be told
    signal accepted
    function clear() { input.clear(); }
    function takeFocus() { input.forceActiveFocus(Qt.OtherFocusReason); }

    implicitWidth: input.implicitWidth
    implicitHeight: input.implicitHeight
    Accessible.role: Accessible.EditableText
    Accessible.passwordEdit: true
    Accessible.name: label
    Accessible.description: label
    Accessible.focusable: true
    Accessible.focused: input.activeFocus

    Field {
        id: input
        anchors.fill: parent
        focus: true
        label: secret.label
        echoMode: TextInput.Password
        passwordCharacter: "•"
        Accessible.ignored: true
        onAccepted: secret.accepted()
    }
}
