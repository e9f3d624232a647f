import QtQuick
import Tovrel.Views

// One row of a list: perhaps an icon, a title with a line below it, and on the right what can be done with it.
RoundedBox {
    id: row

    required property int index
    required property string rowID
    required property string title
    required property string detail
    required property string symbol
    required property url icon
    default property alias controls: holder.data

    implicitHeight: 52
    radius: 14
    from: SettingsTheme.row

    Accessible.role: Accessible.ListItem
    Accessible.name: row.title
    Accessible.description: row.detail

    RoundedBox {
        id: badge

        x: 12
        anchors.verticalCenter: parent.verticalCenter
        visible: row.symbol !== ""
        width: visible ? 32 : 0
        height: 32
        radius: 12
        from: SettingsTheme.accentTint

        Symbol {
            anchors.centerIn: parent
            name: row.symbol
            colour: SettingsTheme.accentInk
            size: 19
        }
    }
    Column {
        anchors.left: badge.right
        anchors.leftMargin: badge.visible ? 12 : 2
        anchors.right: holder.left
        anchors.rightMargin: SettingsTheme.gap
        anchors.verticalCenter: parent.verticalCenter

        Text {
            width: parent.width
            text: row.title
            color: SettingsTheme.ink
            font.pixelSize: 14
            font.weight: Font.Bold
            elide: Text.ElideMiddle
            textFormat: Text.PlainText
            Accessible.ignored: true
        }
        Text {
            width: parent.width
            text: row.detail
            color: SettingsTheme.quiet
            font.pixelSize: 12
            font.weight: Font.Medium
            elide: Text.ElideRight
            textFormat: Text.PlainText
            Accessible.ignored: true
        }
    }
    Row {
        id: holder

        anchors.right: parent.right
        anchors.rightMargin: 10
        anchors.verticalCenter: parent.verticalCenter
        spacing: 8
    }
}
