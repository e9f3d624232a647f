import QtQuick

// The shape that buttons of several colours share.
QtObject {
    required property int height
    required property real radius
    property font font
    // Between the text and either side.
    property int inset: 0
    property int minimumWidth: 0
    // Whether the text is in the middle, however wide the button is.
    property bool isCentred: false
    property real pressedOpacity: 0.75
    required property color focusRing
    property int focusRingDistance: 3
}
