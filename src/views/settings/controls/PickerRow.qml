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
        radius: 11
        isDiagonal: true
        from: row.isCurrent ? "#17bcae" : "#f7efdb"
        to: row.isCurrent ? "#35cdbf" : "#f7efdb"
    }
    Symbol {
        x: 10
        anchors.verticalCenter: parent.verticalCenter
        visible: row.isChosen
        name: "checkmark"
        colour: row.isCurrent ? "white" : SettingsTheme.accentInk
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
        color: row.isCurrent ? "white" : SettingsTheme.ink
        font.pixelSize: 13
        font.weight: Font.DemiBold
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
