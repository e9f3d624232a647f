import QtQuick
import Tovrel.Views

// The backdrop of the panel: a light gradient with a faded leaf, and an edge that is to be seen on any desktop.
Item {
    id: background

    property bool hasLeaf: true

    RoundedBox {
        anchors.fill: parent
        radius: 24
        from: "#dff6ef"
        via: "#f1f6e3"
        to: "#fff1d3"
        borderColour: "#c3d2c4"
        borderWidth: 1
    }

    // Cut off by the upper edge, clear of the round corner.
    Item {
        anchors.fill: parent
        anchors.margins: 1
        visible: background.hasLeaf
        clip: true

        Symbol {
            x: parent.width - 196
            y: -26
            name: "leaf.fill"
            colour: "#19c8b9"
            size: 176
            opacity: 0.12
        }
    }
}
