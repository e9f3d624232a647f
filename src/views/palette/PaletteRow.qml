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

    height: 52

    // The list keeps rows that it does not show, for use by and by.
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
        radius: 16
        color: hover.hovered ? Qt.rgba(1, 1, 250 / 255, 0.98) : Qt.rgba(1, 253 / 255, 242 / 255, 0.82)
    }
    Rectangle {
        id: badge

        anchors.verticalCenter: parent.verticalCenter
        x: 12
        width: 32
        height: 32
        radius: 12
        color: row.isSelected ? Qt.rgba(1, 1, 1, 0.2) : row.tint

        Symbol {
            anchors.centerIn: parent
            name: row.symbol
            colour: row.isSelected ? "white" : row.accent
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
            color: row.isSelected ? "white" : "#40382c"
            font.pixelSize: 16
            font.weight: Font.ExtraBold
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
            colour: row.isSelected ? "white" : "#19c8b9"
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
            color: row.isSelected ? Qt.rgba(1, 1, 1, 0.78) : "#8a7b66"
            font.pixelSize: 12
            font.weight: Font.Medium
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
        isSelected: row.isSelected
    }

    HoverHandler {
        id: hover
    }
    TapHandler {
        onTapped: row.clicked()
    }
}
