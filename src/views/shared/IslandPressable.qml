import QtQuick

// The base of everything that can be pressed: pointer, keyboard, and access for assistive technology.
Item {
    id: control

    readonly property bool isHovered: hover.hovered && control.enabled
    readonly property bool isDown: tap.pressed

    signal pressed()

    activeFocusOnTab: true

    Accessible.role: Accessible.Button
    Accessible.focusable: true
    Accessible.onPressAction: control.pressed()

    Keys.onReturnPressed: control.pressed()
    Keys.onEnterPressed: control.pressed()
    Keys.onSpacePressed: control.pressed()

    HoverHandler {
        id: hover
    }
    TapHandler {
        id: tap

        onTapped: control.pressed()
    }
}
