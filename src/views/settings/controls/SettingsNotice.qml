import QtQuick
import Tovrel.Views

// A notice that the user must see on every page.
RoundedBox {
    id: notice

    required property string title
    required property string text

    implicitHeight: texts.height + 24
    radius: Theme.radii.row
    from: Theme.colours.warningTint
    borderWidth: 1
    borderColour: Theme.colours.warningBorder

    Accessible.role: Accessible.AlertMessage
    Accessible.name: notice.title
    Accessible.description: notice.text

    Symbol {
        x: Theme.settings.rowPadding
        anchors.verticalCenter: parent.verticalCenter
        name: "exclamationmark.triangle"
        colour: Theme.colours.warning
        size: Theme.settings.symbol
    }
    Column {
        id: texts

        x: 46
        width: notice.width - 60
        anchors.verticalCenter: parent.verticalCenter
        spacing: 1

        Text {
            width: texts.width
            text: notice.title
            color: Theme.colours.ink
            font: Theme.fonts.name
            wrapMode: Text.Wrap
            textFormat: Text.PlainText
            Accessible.ignored: true
        }
        Text {
            width: texts.width
            text: notice.text
            color: Theme.colours.ink
            font: Theme.fonts.smallBody
            wrapMode: Text.Wrap
            textFormat: Text.PlainText
            Accessible.role: Accessible.StaticText
            Accessible.name: text
        }
    }
}
