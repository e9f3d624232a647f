import QtQuick
import Tovrel.Views

// The window's backdrop.
Item {
    RoundedBox {
        anchors.fill: parent
        isDiagonal: true
        from: "#dff6ef"
        via: "#f4f6e6"
        to: "#fff1d3"
    }
    Item {
        anchors.fill: parent
        clip: true

        Symbol {
            x: parent.width - 220
            y: -48
            name: "leaf.fill"
            colour: "#19c8b9"
            size: 240
            opacity: 0.1
        }
    }
}
