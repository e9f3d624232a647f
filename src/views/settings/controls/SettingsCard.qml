import QtQuick
import Tovrel.Views

// One section of a page: an icon, a title and a text, and below them what the section holds.
RoundedBox {
    id: card

    required property string symbol
    required property string title
    required property string text
    default property alias content: holder.data

    implicitHeight: holder.y + holder.height + 18
    radius: 20
    from: SettingsTheme.card
    borderWidth: 1
    borderColour: SettingsTheme.cardBorder

    Accessible.role: Accessible.Grouping
    Accessible.name: card.title
    Accessible.description: card.text

    SettingsIcon {
        id: icon

        x: 18
        y: 18
        name: card.symbol
    }
    Column {
        id: texts

        anchors.left: icon.right
        anchors.leftMargin: SettingsTheme.gap
        anchors.right: parent.right
        anchors.rightMargin: 18
        y: 18 + Math.max(0, (icon.height - texts.height) / 2)
        spacing: 1

        Text {
            width: texts.width
            text: card.title
            color: SettingsTheme.ink
            font.pixelSize: 16
            font.weight: Font.ExtraBold
            wrapMode: Text.Wrap
        }
        Text {
            width: texts.width
            text: card.text
            color: SettingsTheme.quiet
            font.pixelSize: 13
            font.weight: Font.Medium
            wrapMode: Text.Wrap
        }
    }
    Column {
        id: holder

        x: 18
        y: Math.max(icon.y + icon.height, texts.y + texts.height) + 14
        width: card.width - 36
        spacing: SettingsTheme.gap
    }
}
