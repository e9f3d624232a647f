import QtQuick
import Tovrel.Views

// A button of a row that shows only a symbol, of one of the kinds in Theme.buttons; `text` is its name.
IslandPressable {
    id: button

    required property string text
    required property string symbol
    property ButtonLook look: Theme.buttons.icon

    implicitWidth: button.look.shape.height
    implicitHeight: button.look.shape.height
    opacity: button.enabled ? 1 : 0.45

    Accessible.name: button.text

    FocusRing {
        control: button
        controlRadius: button.look.shape.radius
    }
    RoundedBox {
        anchors.fill: parent
        radius: button.look.shape.radius
        from: button.isHovered ? button.look.hoveredFrom : button.look.from
        opacity: button.isDown ? button.look.shape.pressedOpacity : 1
    }
    Symbol {
        anchors.centerIn: parent
        name: button.symbol
        colour: button.look.ink
        size: 17
    }
}
