import QtQuick
import Tovrel.Views

// The small icon beside a card's title.
RoundedBox {
    id: icon

    required property string name
    property color colour: SettingsTheme.accentInk
    property color tint: SettingsTheme.accentTint

    implicitWidth: 36
    implicitHeight: 36
    radius: 13
    from: icon.tint

    Symbol {
        anchors.centerIn: parent
        name: icon.name
        colour: icon.colour
        size: 20
    }
}
