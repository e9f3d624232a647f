import QtQuick

// What all that is pressed has in common: pointer, keyboard, and the way assistive technology sees it.
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
