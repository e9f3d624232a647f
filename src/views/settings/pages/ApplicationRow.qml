import QtQuick
import Tovrel.Views

// One application of the dialog.
Item {
    id: row

    required property int index
    required property string title
    required property string detail
    required property url icon
    required property bool isCurrent

    signal selected()
    signal chosen()

    height: 46

    Accessible.role: Accessible.ListItem
    Accessible.name: row.title
    Accessible.description: row.detail
    Accessible.selectable: true
    Accessible.selected: row.isCurrent
    Accessible.onPressAction: row.selected()

    RoundedBox {
        anchors.fill: parent
        visible: row.isCurrent || hover.hovered
        radius: 13
        isDiagonal: true
        from: row.isCurrent ? "#17bcae" : "#f7efdb"
        to: row.isCurrent ? "#35cdbf" : "#f7efdb"
    }
    AppIcon {
        id: picture

        x: 10
        anchors.verticalCenter: parent.verticalCenter
        source: row.icon
        size: 30
    }
    Column {
        anchors.left: picture.right
        anchors.leftMargin: 12
        anchors.right: parent.right
        anchors.rightMargin: 12
        anchors.verticalCenter: parent.verticalCenter

        Text {
            width: parent.width
            text: row.title
            color: row.isCurrent ? "white" : SettingsTheme.ink
            font.pixelSize: 14
            font.weight: Font.Bold
            elide: Text.ElideRight
            textFormat: Text.PlainText
            Accessible.ignored: true
        }
        Text {
            width: parent.width
            text: row.detail
            color: row.isCurrent ? "#e6ffffff" : SettingsTheme.quiet
            font.pixelSize: 11
            font.weight: Font.Medium
            elide: Text.ElideMiddle
            textFormat: Text.PlainText
            Accessible.ignored: true
        }
    }
    HoverHandler {
        id: hover
    }
    TapHandler {
        onTapped: row.selected()
        onDoubleTapped: row.chosen()
    }
}
