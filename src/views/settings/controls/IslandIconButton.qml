import QtQuick
import Tovrel.Views

// A button of a row that is only an icon; `text` is what it is called.
IslandPressable {
    id: button

    required property string text
    required property string symbol
    property string role: "secondary"

    implicitWidth: 32
    implicitHeight: 32
    opacity: button.enabled ? 1 : 0.45

    Accessible.name: button.text

    FocusRing {
        control: button
        controlRadius: 11
    }
    RoundedBox {
        anchors.fill: parent
        radius: 11
        from: button.role === "danger" ? (button.isHovered ? "#fbdcd2" : SettingsTheme.dangerTint)
                                       : (button.isHovered ? "white" : "#f1ead8")
        opacity: button.isDown ? 0.75 : 1
    }
    Symbol {
        anchors.centerIn: parent
        name: button.symbol
        colour: button.role === "danger" ? SettingsTheme.danger : SettingsTheme.quiet
        size: 17
    }
}
