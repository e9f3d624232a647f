import QtQuick
import Tovrel.Views

// What the user must know whichever page is open.
RoundedBox {
    id: notice

    required property string title
    required property string text

    implicitHeight: texts.height + 24
    radius: 14
    from: SettingsTheme.warningTint
    borderWidth: 1
    borderColour: SettingsTheme.warningBorder

    Accessible.role: Accessible.AlertMessage
    Accessible.name: notice.title
    Accessible.description: notice.text

    Symbol {
        x: 14
        anchors.verticalCenter: parent.verticalCenter
        name: "exclamationmark.triangle"
        colour: SettingsTheme.warning
        size: 20
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
            color: SettingsTheme.ink
            font.pixelSize: 14
            font.weight: Font.Bold
            wrapMode: Text.Wrap
            textFormat: Text.PlainText
            Accessible.ignored: true
        }
        Text {
            width: texts.width
            text: notice.text
            color: SettingsTheme.ink
            font.pixelSize: 13
            font.weight: Font.Medium
            wrapMode: Text.Wrap
            textFormat: Text.PlainText
            Accessible.role: Accessible.StaticText
            Accessible.name: text
        }
    }
}
