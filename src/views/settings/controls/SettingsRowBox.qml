import QtQuick
import Tovrel.Views

// A row of a card: an icon and a label on the left, and a control on the right.
RoundedBox {
    id: row

    property string symbol: ""
    required property string label
    default property alias control: holder.data

    implicitHeight: Math.max(54, texts.height + 20, holder.childrenRect.height + 16)
    radius: 14
    from: SettingsTheme.row

    Symbol {
        id: icon

        x: 14
        anchors.verticalCenter: parent.verticalCenter
        visible: row.symbol !== ""
        name: row.symbol
        colour: SettingsTheme.accentInk
        size: 20
    }
    Text {
        id: texts

        anchors.left: icon.visible ? icon.right : parent.left
        anchors.leftMargin: icon.visible ? 10 : 14
        anchors.right: holder.left
        anchors.rightMargin: SettingsTheme.gap
        anchors.verticalCenter: parent.verticalCenter
        text: row.label
        color: SettingsTheme.ink
        font.pixelSize: 14
        font.weight: Font.DemiBold
        wrapMode: Text.Wrap
        maximumLineCount: 3
        elide: Text.ElideRight
    }
    Item {
        id: holder

        anchors.right: parent.right
        anchors.rightMargin: 10
        anchors.verticalCenter: parent.verticalCenter
        width: childrenRect.width
        height: childrenRect.height
    }
}
