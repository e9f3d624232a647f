import QtQuick
import Tovrel.Views

// The list of a picker's choices, with what its rows share.
ListView {
    required property IslandPicker picker
    required property int rowHeight
    property real widest: 0

    signal chosen(int row)
}
