import QtQuick

// Radii of round corners. Boxes that end in half a circle use half their own height instead.
QtObject {
    // Of boxes that float on the desktop or over a window.
    readonly property real window: 24
    readonly property real popup: 16

    readonly property real sidebar: 22
    readonly property real card: 20
    readonly property real paletteRow: 16
    readonly property real row: 14
    readonly property real applicationRow: 13
    readonly property real choice: 11

    readonly property real searchField: 18
    readonly property real field: 13
    readonly property real answer: 16
    readonly property real button: 14
    readonly property real iconButton: 11

    // Of the boxes around symbols, by their size.
    readonly property real badge64: 24
    readonly property real badge52: 19
    readonly property real badge48: 18
    readonly property real badge36: 13
    readonly property real badge32: 12
}
