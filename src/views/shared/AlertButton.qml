import QtQuick
import Tovrel.Views

// A button of an alert. The default one is filled.
FocusScope {
    id: button

    required property string text
    required property bool isDefault

    signal pressed()

    implicitWidth: Math.max(112, Math.ceil(label.implicitWidth) + 40)
    implicitHeight: 40
    activeFocusOnTab: true

    Accessible.role: Accessible.Button
    Accessible.name: button.text
    Accessible.defaultButton: button.isDefault
    Accessible.focusable: true
    Accessible.onPressAction: button.pressed()

    Keys.onReturnPressed: button.pressed()
    Keys.onEnterPressed: button.pressed()
    Keys.onSpacePressed: button.pressed()

    // The ring of the keyboard focus.
    RoundedBox {
        anchors.fill: parent
        anchors.margins: -4
        visible: button.activeFocus
        radius: 20
        borderWidth: 2
        borderColour: "#8c19c8b9"
    }
    RoundedBox {
        anchors.fill: parent
        visible: button.isDefault
        radius: 16
        isDiagonal: true
        from: hover.hovered ? "#17bdaf" : "#19c8b9"
        to: hover.hovered ? "#35cabc" : "#3dd4c6"
    }
    RoundedBox {
        anchors.fill: parent
        visible: !button.isDefault
        radius: 16
        from: hover.hovered ? "white" : "#fffdf6"
        borderWidth: 1
        borderColour: "#408a7b66"
    }
    Text {
        id: label

        anchors.centerIn: parent
        text: button.text
        color: button.isDefault ? "white" : "#40382c"
        font.pixelSize: 15
        font.weight: Font.ExtraBold
        textFormat: Text.PlainText
        Accessible.ignored: true
    }
    HoverHandler {
        id: hover
    }
    TapHandler {
        onTapped: button.pressed()
    }
}
