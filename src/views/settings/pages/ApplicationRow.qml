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

    height: Theme.settings.applicationRowHeight

    Accessible.role: Accessible.ListItem
    Accessible.name: row.title
    Accessible.description: row.detail
    Accessible.selectable: true
    Accessible.selected: row.isCurrent
    Accessible.onPressAction: row.selected()

    RoundedBox {
        anchors.fill: parent
        visible: row.isCurrent || hover.hovered
        radius: Theme.radii.applicationRow
        isDiagonal: true
        from: row.isCurrent ? Theme.colours.chosen : Theme.colours.rowHovered
        to: row.isCurrent ? Theme.colours.chosenLight : Theme.colours.rowHovered
    }
    AppIcon {
        id: picture

        x: 10
        anchors.verticalCenter: parent.verticalCenter
        source: row.icon
        size: Theme.settings.rowIcon
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
            color: row.isCurrent ? Theme.colours.textOnAccent : Theme.colours.ink
            font: Theme.fonts.name
            elide: Text.ElideRight
            textFormat: Text.PlainText
            Accessible.ignored: true
        }
        Text {
            width: parent.width
            text: row.detail
            color: row.isCurrent ? Theme.colours.quietTextOnChosen : Theme.colours.quiet
            font: Theme.fonts.smallDetail
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
