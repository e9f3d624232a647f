import QtQuick
import Tovrel.Views

// The list of a picker's choices, with the shared state of its rows.
ListView {
    required property IslandPicker picker
    required property int rowHeight
    property real widest: 0

    signal chosen(int row)
}
