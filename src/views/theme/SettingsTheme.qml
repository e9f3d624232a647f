pragma Singleton

import QtQuick

// The colours and measures that the settings' views share.
QtObject {
    readonly property color ink: "#40382c"
    readonly property color quiet: "#7a6c58"
    readonly property color faint: "#a89a85"
    readonly property color accent: "#19c8b9"
    readonly property color accentLight: "#3dd4c6"
    readonly property color accentInk: "#0b7a71"
    readonly property color accentTint: "#e0f6f2"
    readonly property color danger: "#c9442f"
    readonly property color dangerTint: "#fdebe5"
    readonly property color warning: "#a86a0b"
    readonly property color warningTint: "#fff0cc"
    readonly property color warningBorder: "#40a86a0b"
    readonly property color card: "#fffdf6"
    readonly property color cardBorder: "#26806b4a"
    readonly property color row: "#fbf5e6"
    readonly property color line: "#408a7b66"

    readonly property int gap: 12
    readonly property int inner: 16
    readonly property int outer: 24
    readonly property int controlHeight: 36
}
