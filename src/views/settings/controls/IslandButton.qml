import QtQuick
import Tovrel.Views

// A button with a text and perhaps an icon: "primary" for the main action of a card, "danger" for removing,
// "secondary" for the others.
IslandPressable {
    id: button

    required property string text
    property string role: "secondary"
    property string symbol: ""
    property bool compact: false

    readonly property color ink: button.role === "primary" ? "white"
                               : button.role === "danger" ? SettingsTheme.danger : SettingsTheme.ink

    implicitWidth: Math.ceil(label.implicitWidth) + label.x + (button.compact ? 14 : 18)
    implicitHeight: button.compact ? 32 : 38
    opacity: button.enabled ? 1 : 0.45

    Accessible.name: button.text

    FocusRing {
        control: button
        controlRadius: 14
    }
    RoundedBox {
        anchors.fill: parent
        radius: 14
        isDiagonal: true
        from: button.role === "primary" ? (button.isHovered ? "#14b3a5" : "#17bcae")
            : button.role === "danger" ? (button.isHovered ? "#fbdcd2" : SettingsTheme.dangerTint)
            : button.isHovered ? "white" : SettingsTheme.card
        to: button.role === "primary" ? (button.isHovered ? "#2cc4b6" : "#35cdbf")
          : button.role === "danger" ? (button.isHovered ? "#fbdcd2" : SettingsTheme.dangerTint)
          : button.isHovered ? "white" : SettingsTheme.card
        borderWidth: button.role === "primary" ? 0 : 1
        borderColour: button.role === "danger" ? "#40c9442f" : SettingsTheme.line
        opacity: button.isDown ? 0.75 : 1
    }
    Symbol {
        id: icon

        anchors.verticalCenter: parent.verticalCenter
        x: button.compact ? 12 : 14
        visible: button.symbol !== ""
        name: button.symbol
        colour: button.ink
        size: 16
    }
    Text {
        id: label

        anchors.verticalCenter: parent.verticalCenter
        x: icon.visible ? icon.x + icon.width + 7 : (button.compact ? 14 : 18)
        width: Math.min(implicitWidth, button.width - label.x - 8)
        text: button.text
        color: button.ink
        font.pixelSize: button.compact ? 13 : 14
        font.weight: Font.Bold
        elide: Text.ElideRight
        textFormat: Text.PlainText
        Accessible.ignored: true
    }
}
