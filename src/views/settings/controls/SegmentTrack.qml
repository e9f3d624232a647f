import QtQuick

// The row of an IslandSegmentedPicker's segments, with what they share.
Row {
    required property int selection
    required property real cellWidth
    required property real cellHeight
    // So that all segments are as wide as the widest text needs.
    property real widest: 72

    signal chosen(int index)
}
