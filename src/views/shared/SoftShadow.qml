import QtQuick
import Tovrel.Views

// A soft shadow below a box that floats over the others.
Item {
    id: shadow

    required property real radius

    RoundedBox {
        anchors.fill: parent
        anchors.margins: -1
        anchors.bottomMargin: -4
        radius: shadow.radius + 1
        from: Theme.colours.shadowInner
    }
    RoundedBox {
        anchors.fill: parent
        anchors.margins: -3
        anchors.topMargin: -1
        anchors.bottomMargin: -8
        radius: shadow.radius + 3
        from: Theme.colours.shadowMiddle
    }
    RoundedBox {
        anchors.fill: parent
        anchors.margins: -6
        anchors.topMargin: -2
        anchors.bottomMargin: -13
        radius: shadow.radius + 6
        from: Theme.colours.shadowOuter
    }
}
