import QtQuick

// The colours of one kind of button, and its shape.
QtObject {
    // A gradient from the upper left to the lower right.
    required property color from
    required property color to
    required property color hoveredFrom
    required property color hoveredTo
    required property color ink
    property color border: "transparent"
    required property ButtonShape shape
}
