import QtQuick
import Tovrel.Views

// The backdrop of the panel and of questions: a gradient, an optional faded leaf, and an edge that is visible on any
// desktop.
Item {
    id: background

    property bool hasLeaf: true
    readonly property alias cornerRadius: box.radius
    readonly property alias edge: box.borderColour

    RoundedBox {
        id: box

        anchors.fill: parent
        radius: Theme.radii.window
        from: Theme.colours.backdropStart
        via: Theme.colours.paletteBackdropMiddle
        to: Theme.colours.backdropEnd
        borderColour: Theme.colours.windowEdge
        borderWidth: 1
    }

    // The upper edge cuts the leaf off, clear of the round corner.
    Item {
        anchors.fill: parent
        anchors.margins: 1
        visible: background.hasLeaf
        clip: true

        Symbol {
            x: parent.width - 196
            y: -26
            name: "leaf.fill"
            colour: Theme.colours.accent
            size: 176
            opacity: 0.12
        }
    }
}
