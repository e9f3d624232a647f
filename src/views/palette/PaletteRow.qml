import QtQuick
import Tovrel.Views

// One result: its icon, title and subtitle, a check mark, and its shortcut.
Item {
    id: row

    required property int index
    required property string title
    required property string subtitle
    required property list<string> keycaps
    required property string spokenName
    required property string symbol
    required property color accent
    required property color tint
    required property bool isChecked

    required property bool isSelected
    required property bool showCheckedStatus
    required property int count

    signal clicked()

    height: Theme.palette.rowHeight

    // The list keeps rows that it does not show, to reuse them later.
    Accessible.ignored: row.index < 0
    Accessible.role: Accessible.ListItem
    Accessible.name: row.spokenName
    Accessible.description: qsTr("%1 of %2").arg(row.index + 1).arg(row.count)
    Accessible.selectable: true
    Accessible.selected: row.isSelected
    Accessible.checked: row.showCheckedStatus && row.isChecked
    Accessible.onPressAction: row.clicked()

    Rectangle {
        anchors.fill: parent
        visible: !row.isSelected
        radius: Theme.radii.paletteRow
        color: hover.hovered ? Theme.colours.paletteRowHovered : Theme.colours.paletteRow
    }
    Rectangle {
        id: badge

        anchors.verticalCenter: parent.verticalCenter
        x: 12
        width: Theme.palette.badge
        height: Theme.palette.badge
        radius: Theme.radii.badge32
        color: row.isSelected ? Theme.colours.badgeOnAccent : row.tint

        Symbol {
            anchors.centerIn: parent
            name: row.symbol
            colour: row.isSelected ? Theme.colours.textOnAccent : row.accent
            size: 20
        }
    }

    Item {
        id: texts

        anchors.verticalCenter: parent.verticalCenter
        anchors.left: badge.right
        anchors.leftMargin: 16
        anchors.right: caps.left
        anchors.rightMargin: caps.visible ? 12 : 0
        height: subtitleLabel.visible ? titleLabel.height + subtitleLabel.height : titleLabel.height

        Text {
            id: titleLabel

            width: Math.min(implicitWidth, texts.width - (check.visible ? check.width + 6 : 0))
            height: 20
            verticalAlignment: Text.AlignVCenter
            text: row.title
            color: row.isSelected ? Theme.colours.textOnAccent : Theme.colours.ink
            font: Theme.fonts.title
            elide: Text.ElideRight
            textFormat: Text.PlainText
        }
        Symbol {
            id: check

            objectName: "check"
            visible: row.showCheckedStatus && row.isChecked
            anchors.left: titleLabel.right
            anchors.leftMargin: 6
            anchors.verticalCenter: titleLabel.verticalCenter
            name: "checkmark"
            colour: row.isSelected ? Theme.colours.textOnAccent : Theme.colours.accent
            size: 14
        }
        Text {
            id: subtitleLabel

            visible: row.subtitle !== ""
            anchors.top: titleLabel.bottom
            width: texts.width
            height: 16
            verticalAlignment: Text.AlignVCenter
            text: row.subtitle
            color: row.isSelected ? Theme.colours.quietTextOnAccent : Theme.colours.paletteQuiet
            font: Theme.fonts.detail
            elide: Text.ElideMiddle
            textFormat: Text.PlainText
        }
    }

    ShortcutKeycaps {
        id: caps

        anchors.verticalCenter: parent.verticalCenter
        anchors.right: parent.right
        anchors.rightMargin: 14
        visible: row.keycaps.length > 0
        texts: row.keycaps
        font: Theme.fonts.keycap
        ink: row.isSelected ? Theme.colours.textOnAccent : Theme.colours.keycapInk
        borderColour: row.isSelected ? Theme.colours.keycapBorderSelected : Theme.colours.keycapBorder
    }

    HoverHandler {
        id: hover
    }
    TapHandler {
        onTapped: row.clicked()
    }
}
