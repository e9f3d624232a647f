import QtQuick

// The colours of everything, named by their use. A variant is a ThemeColours with other values.
QtObject {
    // Texts: main texts, secondary texts, and hints.
    property color ink: "#40382c"
    property color quiet: "#7a6c58"
    property color faint: "#a89a85"
    property color paletteQuiet: "#8a7b66"
    property color paletteFaint: "#b3a793"

    // The accent: alone, as the two ends of a gradient, as a text, and below such a text.
    property color accent: "#19c8b9"
    property color accentLight: "#3dd4c6"
    property color accentInk: "#0b7a71"
    property color accentTint: "#e0f6f2"
    property color paletteAccentInk: "#0f8a80"
    property color paletteAccentTint: "#e6f9f6"
    // A little stronger, for chosen items and buttons in the settings.
    property color chosen: "#17bcae"
    property color chosenLight: "#35cdbf"
    // On any of these gradients: texts, secondary texts, and badges.
    property color textOnAccent: "white"
    property color quietTextOnAccent: Qt.rgba(1, 1, 1, 0.78)
    property color badgeOnAccent: Qt.rgba(1, 1, 1, 0.2)
    property color quietTextOnChosen: "#e6ffffff"

    property color danger: "#c9442f"
    property color dangerTint: "#fdebe5"
    property color dangerTintHovered: "#fbdcd2"
    property color dangerBorder: "#40c9442f"
    property color warning: "#a86a0b"
    property color warningTint: "#fff0cc"
    property color warningBorder: "#40a86a0b"
    property color alertSign: "#e0a127"
    property color alertSignTint: "#fff2ca"

    // The backdrops of windows, which are gradients of three colours, and their edge.
    property color backdropStart: "#dff6ef"
    property color paletteBackdropMiddle: "#f1f6e3"
    property color settingsBackdropMiddle: "#f4f6e6"
    property color backdropEnd: "#fff1d3"
    property color windowEdge: "#c3d2c4"
    // The colours into which lists fade at their ends, close to the backdrop there.
    property color paletteFadeAbove: "#e2f6ed"
    property color paletteFadeBelow: "#fff1d3"
    property color settingsFadeAbove: "#f1f5e6"

    // Surfaces on a backdrop.
    property color paletteRow: Qt.rgba(1, 253 / 255, 242 / 255, 0.82)
    property color paletteRowHovered: Qt.rgba(1, 1, 250 / 255, 0.98)
    property color sidebar: "#a6ffffff"
    property color sidebarBorder: "#33806b4a"
    property color sidebarEntryHovered: "#99ffffff"
    property color card: "#fffdf6"
    property color cardBorder: "#26806b4a"
    property color row: "#fbf5e6"
    property color rowHovered: "#f7efdb"

    // Controls.
    property color line: "#408a7b66"
    property color lineHovered: "#668a7b66"
    property color focusRing: "#b319c8b9"
    property color answerFocusRing: "#8c19c8b9"
    property color field: "white"
    property color paletteFieldAtRest: "#99ffffff"
    property color fieldRecording: "#f0fbf9"
    property color fieldClearer: "#b9ac96"
    property color primaryHovered: "#14b3a5"
    property color primaryHoveredLight: "#2cc4b6"
    property color defaultAnswerHovered: "#17bdaf"
    property color defaultAnswerHoveredLight: "#35cabc"
    property color buttonHovered: "white"
    property color trough: "#f1ead8"
    property color segmentHovered: "#b3ffffff"
    property color toggleOff: "#d9cfba"
    property color toggleKnob: "white"
    property color scrollKnob: "#598a7b66"
    property color scrollKnobHovered: "#8c8a7b66"
    property color keycapInk: "#6f6250"
    property color keycapBorder: Qt.rgba(111 / 255, 98 / 255, 80 / 255, 0.26)
    property color keycapBorderSelected: Qt.rgba(1, 1, 1, 0.42)

    // The shadow around floating boxes, from the inside to the outside, and the veil below a dialog.
    property color shadowInner: "#0c40382c"
    property color shadowMiddle: "#0a40382c"
    property color shadowOuter: "#0840382c"
    property color veil: "#5940382c"
}
