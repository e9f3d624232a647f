import QtQuick
import Tovrel.Views

// A button with a text and an optional symbol, of one of the kinds in Theme.buttons.
IslandPressable {
    id: button

    required property string text
    property ButtonLook look: Theme.buttons.secondary
    property string symbol: ""
    // Return presses it wherever the keyboard focus is.
    property bool isDefault: false

    readonly property ButtonShape shape: button.look.shape
    // Where the text begins, and the width left for it.
    readonly property int start: icon.visible ? icon.x + icon.width + 7 : button.shape.inset
    readonly property real room: button.width - button.start - 8

    implicitWidth: Math.max(button.shape.minimumWidth,
                            Math.ceil(label.implicitWidth) + button.start + button.shape.inset)
    implicitHeight: button.shape.height
    opacity: button.enabled ? 1 : 0.45

    Accessible.name: button.text
    Accessible.defaultButton: button.isDefault

    FocusRing {
        control: button
        controlRadius: button.shape.radius
        distance: button.shape.focusRingDistance
        borderColour: button.shape.focusRing
    }
    RoundedBox {
        anchors.fill: parent
        radius: button.shape.radius
        isDiagonal: true
        from: button.isHovered ? button.look.hoveredFrom : button.look.from
        to: button.isHovered ? button.look.hoveredTo : button.look.to
        borderWidth: 1
        borderColour: button.look.border
        opacity: button.isDown ? button.shape.pressedOpacity : 1
    }
    Symbol {
        id: icon

        anchors.verticalCenter: parent.verticalCenter
        x: 14
        visible: button.symbol !== ""
        name: button.symbol
        colour: button.look.ink
        size: Theme.settings.controlSymbol
    }
    Text {
        id: label

        anchors.verticalCenter: parent.verticalCenter
        anchors.horizontalCenter: button.shape.isCentred ? parent.horizontalCenter : undefined
        x: button.start
        width: Math.min(implicitWidth, button.room)
        text: button.text
        color: button.look.ink
        font: button.shape.font
        elide: Text.ElideRight
        textFormat: Text.PlainText
        Accessible.ignored: true
    }
}
