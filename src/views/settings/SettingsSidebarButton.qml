import QtQuick
import Tovrel.Views

// One entry of the sidebar.
IslandPressable {
    id: button

    required property string title
    required property string symbol
    required property bool isSelected

    implicitHeight: Theme.settings.sidebarEntryHeight

    Accessible.role: Accessible.PageTab
    Accessible.name: button.title
    Accessible.selectable: true
    Accessible.selected: button.isSelected

    FocusRing {
        control: button
        controlRadius: Theme.radii.button
    }
    RoundedBox {
        anchors.fill: parent
        visible: button.isSelected || button.isHovered
        radius: Theme.radii.button
        isDiagonal: true
        from: button.isSelected ? Theme.colours.chosen : Theme.colours.sidebarEntryHovered
        to: button.isSelected ? Theme.colours.chosenLight : Theme.colours.sidebarEntryHovered
    }
    Symbol {
        id: icon

        x: 12
        anchors.verticalCenter: parent.verticalCenter
        name: button.symbol
        colour: button.isSelected ? Theme.colours.textOnAccent : Theme.colours.accentInk
        size: Theme.settings.symbol
    }
    Text {
        anchors.left: icon.right
        anchors.leftMargin: 11
        anchors.right: parent.right
        anchors.rightMargin: 10
        anchors.verticalCenter: parent.verticalCenter
        text: button.title
        color: button.isSelected ? Theme.colours.textOnAccent : Theme.colours.ink
        font: Theme.fonts.name
        elide: Text.ElideRight
        textFormat: Text.PlainText
        Accessible.ignored: true
    }
}
