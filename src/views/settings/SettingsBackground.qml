import QtQuick
import Tovrel.Views

// The window's backdrop.
Item {
    RoundedBox {
        anchors.fill: parent
        isDiagonal: true
        from: Theme.colours.backdropStart
        via: Theme.colours.settingsBackdropMiddle
        to: Theme.colours.backdropEnd
    }
    Item {
        anchors.fill: parent
        clip: true

        Symbol {
            x: parent.width - 220
            y: -48
            name: "leaf.fill"
            colour: Theme.colours.accent
            size: 240
            opacity: 0.1
        }
    }
}
