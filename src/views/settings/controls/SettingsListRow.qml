import QtQuick
import Tovrel.Views

// One row of a list: an optional icon, a title with a line below it, and on the right its actions.
RoundedBox {
    id: row

    required property int index
    required property string rowID
    required property string title
    required property string detail
    required property string symbol
    required property url icon
    default property alias controls: holder.data

    implicitHeight: Theme.settings.rowHeight
    radius: Theme.radii.row
    from: Theme.colours.row

    Accessible.role: Accessible.ListItem
    Accessible.name: row.title
    Accessible.description: row.detail

    RoundedBox {
        id: badge

        x: Theme.settings.rowStart
        anchors.verticalCenter: parent.verticalCenter
        visible: row.symbol !== ""
        width: visible ? Theme.settings.badge : 0
        height: Theme.settings.badge
        radius: Theme.radii.badge32
        from: Theme.colours.accentTint

        Symbol {
            anchors.centerIn: parent
            name: row.symbol
            colour: Theme.colours.accentInk
            size: 19
        }
    }
    Column {
        anchors.left: badge.right
        anchors.leftMargin: badge.visible ? 12 : 2
        anchors.right: holder.left
        anchors.rightMargin: Theme.settings.gap
        anchors.verticalCenter: parent.verticalCenter

        Text {
            width: parent.width
            text: row.title
            color: Theme.colours.ink
            font: Theme.fonts.name
            elide: Text.ElideMiddle
            textFormat: Text.PlainText
            Accessible.ignored: true
        }
        Text {
            width: parent.width
            text: row.detail
            color: Theme.colours.quiet
            font: Theme.fonts.detail
            elide: Text.ElideRight
            textFormat: Text.PlainText
            Accessible.ignored: true
        }
    }
    Row {
        id: holder

        anchors.right: parent.right
        anchors.rightMargin: Theme.settings.rowEnd
        anchors.verticalCenter: parent.verticalCenter
        spacing: 8
    }
}
