// SPDX-FileCopyrightText: The Varlo developers
// SPDX-License-Identifier: GPL-3.0-or-later
pragma Singleton
import QtQuick

/// Every measure and colour of the window. Sizes are device-independent pixels.
QtObject {
    readonly property color paper: "#F5F3EF"
    readonly property color surface: "#FFFFFF"
    readonly property color sunken: "#FAF8F5"
    readonly property color fill: "#ECE8E1"
    readonly property color fillPressed: "#E0DACF"
    readonly property color line: "#E6E1D9"
    readonly property color lineStrong: "#CEC7BB"
    readonly property color lineHovered: "#B8B0A2"
    readonly property color control: "#8E887C"
    readonly property color ink: "#1F1D1A"
    readonly property color ink2: "#5C574F"
    readonly property color ink3: "#6F6A61"
    readonly property color inkDisabled: "#A39D93"
    readonly property color accent: "#0E6377"
    readonly property color accentHover: "#0B5567"
    readonly property color accentPressed: "#084453"
    readonly property color accentTint: "#E2EFF2"
    readonly property color accentTint2: "#CFE5EA"
    readonly property color accentInk: "#0A4E5F"
    readonly property color marigold: "#F8B84A"
    readonly property color ok: "#1B6E41"
    readonly property color okTint: "#E3F2E8"
    readonly property color okDot: "#1F8A50"
    readonly property color okLine: "#A9CFB8"
    readonly property color warn: "#7C4D00"
    readonly property color warnTint: "#FBEFD6"
    readonly property color warnLine: "#F0DDB4"
    readonly property color warnDot: "#A86700"
    readonly property color bad: "#B3261E"
    readonly property color badHover: "#941D17"
    readonly property color badTint: "#FCEAE8"
    readonly property color badLine: "#F5CFCB"
    readonly property color scrim: "#61262119" // 38 % of rgb(38, 33, 25)
    readonly property color scrim2: "#4D262119"
    readonly property var kinds: ({
            "photo": { ink: "#5B4596", tint: "#ECE8F7", icon: "photo" },
            "doc.text": { ink: "#9A3B22", tint: "#FAE8E2", icon: "file-text" },
            "doc.richtext": { ink: "#2A5590", tint: "#E3ECF8", icon: "file-typography" },
            "doc.plaintext": { ink: "#5C574F", tint: "#ECE8E1", icon: "notes" },
            "doc": { ink: "#5C574F", tint: "#ECE8E1", icon: "file" }
        })
    readonly property var statusLooks: ({
            pending: { icon: "circle-dashed", ink: ink2, fill: fill },
            processing: { icon: "loader-2", ink: accentInk, fill: accentTint },
            suggested: { icon: "sparkles", ink: accentInk, fill: accentTint },
            renamed: { icon: "check", ink: ok, fill: okTint },
            alreadyRenamed: { icon: "checks", ink: ok, fill: "transparent", line: okLine },
            noTextFound: { icon: "file-unknown", ink: warn, fill: warnTint },
            notSupportedYet: { icon: "ban", ink: ink2, fill: "transparent", line: lineStrong },
            failed: { icon: "alert-triangle", ink: bad, fill: badTint }
        })

    readonly property string family: "Inter"
    readonly property string displayFamily: "Inter Display"
    readonly property string codeFamily: "JetBrains Mono"
    /// What the desktop's text size multiplies every height of text with.
    property real textScale: 1
    property real pixelRatio: 1 ///< pixels of the screen to one of ours
    function text(pixels: real): int { return Math.round(pixels * textScale); }

    property bool isAnimated: true
    readonly property int fast: isAnimated ? 90 : 0
    readonly property int base: isAnimated ? 160 : 0
    readonly property int slow: isAnimated ? 240 : 0
    readonly property int story: isAnimated ? 360 : 0
    readonly property int spin: 900
    readonly property int sweep: 1400
}
