import QtQuick
import Tovrel.Views

// One entry of the sidebar.
IslandPressable {
    id: button

    required property string title
    required property string symbol
    required property bool isSelected

    implicitHeight: 42

    Accessible.role: Accessible.PageTab
    Accessible.name: button.title
    Accessible.selectable: true
    Accessible.selected: button.isSelected

    FocusRing {
        control: button
        controlRadius: 14
    }
    RoundedBox {
        anchors.fill: parent
        visible: button.isSelected || button.isHovered
        radius: 14
        isDiagonal: true
        from: button.isSelected ? "#17bcae" : "#99ffffff"
        to: button.isSelected ? "#35cdbf" : "#99ffffff"
    }
    Symbol {
        id: icon

        x: 12
        anchors.verticalCenter: parent.verticalCenter
        name: button.symbol
        colour: button.isSelected ? "white" : SettingsTheme.accentInk
        size: 20
    }
    Text {
        anchors.left: icon.right
        anchors.leftMargin: 11
        anchors.right: parent.right
        anchors.rightMargin: 10
        anchors.verticalCenter: parent.verticalCenter
        text: button.title
        color: button.isSelected ? "white" : SettingsTheme.ink
        font.pixelSize: 14
        font.weight: Font.Bold
        elide: Text.ElideRight
        textFormat: Text.PlainText
        Accessible.ignored: true
    }
}
