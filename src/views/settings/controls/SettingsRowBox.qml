import QtQuick
import Tovrel.Views

// A row of a card: an icon and a label on the left, and a control on the right.
RoundedBox {
    id: row

    property string symbol: ""
    required property string label
    default property alias control: holder.data

    implicitHeight: Math.max(Theme.settings.controlRowHeight, texts.height + 20, holder.childrenRect.height + 16)
    radius: Theme.radii.row
    from: Theme.colours.row

    Symbol {
        id: icon

        x: Theme.settings.rowPadding
        anchors.verticalCenter: parent.verticalCenter
        visible: row.symbol !== ""
        name: row.symbol
        colour: Theme.colours.accentInk
        size: Theme.settings.symbol
    }
    Text {
        id: texts

        anchors.left: icon.visible ? icon.right : parent.left
        anchors.leftMargin: icon.visible ? 10 : Theme.settings.rowPadding
        anchors.right: holder.left
        anchors.rightMargin: Theme.settings.gap
        anchors.verticalCenter: parent.verticalCenter
        text: row.label
        color: Theme.colours.ink
        font: Theme.fonts.label
        wrapMode: Text.Wrap
        maximumLineCount: 3
        elide: Text.ElideRight
    }
    Item {
        id: holder

        anchors.right: parent.right
        anchors.rightMargin: Theme.settings.rowEnd
        anchors.verticalCenter: parent.verticalCenter
        width: childrenRect.width
        height: childrenRect.height
    }
}
