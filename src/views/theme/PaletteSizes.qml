import QtQuick

// Measures of the palette, in pixels. Multiples of 4 are whole pixels at a scale of 1.25 too.
QtObject {
    // The size of the panel, which takes it from the view.
    readonly property int width: 680
    readonly property int height: 460

    // Between the edge and the header, and between the edge and the rows.
    readonly property int headerInset: 22
    readonly property int listInset: 12
    readonly property int fieldHeight: 48
    readonly property int rowHeight: 52
    readonly property int rowSpacing: 4

    readonly property int applicationIcon: 36
    readonly property int badge: 32
    readonly property int capsuleHeight: 28
}
