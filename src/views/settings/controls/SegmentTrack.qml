import QtQuick

// The row of an IslandSegmentedPicker's segments, with their shared state.
Row {
    required property int selection
    required property real cellWidth
    required property real cellHeight
    // The width of every segment, which the widest text determines.
    property real widest: 72

    signal chosen(int index)
}
