import QtQuick
import Tovrel.Views

// One section of a page: an icon, a title and a text, and the section's content below them.
RoundedBox {
    id: card

    required property string symbol
    required property string title
    required property string text
    default property alias content: holder.data

    implicitHeight: holder.y + holder.height + Theme.settings.cardPadding
    radius: Theme.radii.card
    from: Theme.colours.card
    borderWidth: 1
    borderColour: Theme.colours.cardBorder

    Accessible.role: Accessible.Grouping
    Accessible.name: card.title
    Accessible.description: card.text

    SettingsIcon {
        id: icon

        x: Theme.settings.cardPadding
        y: Theme.settings.cardPadding
        name: card.symbol
    }
    Column {
        id: texts

        anchors.left: icon.right
        anchors.leftMargin: Theme.settings.gap
        anchors.right: parent.right
        anchors.rightMargin: Theme.settings.cardPadding
        y: Theme.settings.cardPadding + Math.max(0, (icon.height - texts.height) / 2)
        spacing: 1

        Text {
            width: texts.width
            text: card.title
            color: Theme.colours.ink
            font: Theme.fonts.title
            wrapMode: Text.Wrap
        }
        Text {
            width: texts.width
            text: card.text
            color: Theme.colours.quiet
            font: Theme.fonts.smallBody
            wrapMode: Text.Wrap
        }
    }
    Column {
        id: holder

        x: Theme.settings.cardPadding
        y: Math.max(icon.y + icon.height, texts.y + texts.height) + 14
        width: card.width - 2 * Theme.settings.cardPadding
        spacing: Theme.settings.gap
    }
}
