import QtQuick
import Tovrel.Views

// The small icon beside a card's title.
RoundedBox {
    id: icon

    required property string name
    property color colour: Theme.colours.accentInk
    property color tint: Theme.colours.accentTint

    implicitWidth: Theme.settings.icon
    implicitHeight: Theme.settings.icon
    radius: Theme.radii.badge36
    from: icon.tint

    Symbol {
        anchors.centerIn: parent
        name: icon.name
        colour: icon.colour
        size: Theme.settings.symbol
    }
}
