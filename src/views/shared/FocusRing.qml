import QtQuick
import Tovrel.Views

// The ring around the control with the keyboard focus.
RoundedBox {
    id: ring

    required property Item control
    required property real controlRadius
    property int distance: 3

    anchors.fill: parent
    anchors.margins: -ring.distance
    visible: ring.control.activeFocus
    radius: ring.controlRadius + ring.distance
    borderWidth: 2
    borderColour: Theme.colours.focusRing
}
