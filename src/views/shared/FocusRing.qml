import QtQuick
import Tovrel.Views

// The ring around what has the keyboard focus.
RoundedBox {
    id: ring

    required property Item control
    property real controlRadius: 12

    anchors.fill: parent
    anchors.margins: -3
    visible: ring.control.activeFocus
    radius: ring.controlRadius + 3
    borderWidth: 2
    borderColour: "#b319c8b9"
}
