import QtQuick
import Tovrel.Views

// One of the choices of a picker.
Item {
    id: row

    required property int index
    required property string rowID
    required property string title
    required property bool isCurrent
    required property bool isChosen
    property bool elidesMiddle: false

    readonly property real textWidth: label.implicitWidth

    signal chosen()

    Accessible.role: Accessible.ListItem
    Accessible.name: row.title
    Accessible.selectable: true
    Accessible.selected: row.isCurrent
    Accessible.onPressAction: row.chosen()

    RoundedBox {
        anchors.fill: parent
        visible: row.isCurrent || hover.hovered
        radius: Theme.radii.choice
        isDiagonal: true
        from: row.isCurrent ? Theme.colours.chosen : Theme.colours.rowHovered
        to: row.isCurrent ? Theme.colours.chosenLight : Theme.colours.rowHovered
    }
    Symbol {
        x: 10
        anchors.verticalCenter: parent.verticalCenter
        visible: row.isChosen
        name: "checkmark"
        colour: row.isCurrent ? Theme.colours.textOnAccent : Theme.colours.accentInk
        size: 13
    }
    Text {
        id: label

        anchors.left: parent.left
        anchors.leftMargin: 32
        anchors.right: parent.right
        anchors.rightMargin: 14
        anchors.verticalCenter: parent.verticalCenter
        text: row.title
        color: row.isCurrent ? Theme.colours.textOnAccent : Theme.colours.ink
        font: Theme.fonts.smallLabel
        elide: row.elidesMiddle ? Text.ElideMiddle : Text.ElideRight
        textFormat: Text.PlainText
        Accessible.ignored: true
    }
    HoverHandler {
        id: hover
    }
    TapHandler {
        onTapped: row.chosen()
    }
}
