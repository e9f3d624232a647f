import QtQuick
import Tovrel.Views

// A state in one or two words, with an icon.
RoundedBox {
    id: pill

    required property string symbol
    required property string text
    property bool isGood: true

    implicitWidth: Math.ceil(label.implicitWidth) + 42
    implicitHeight: 30
    radius: 15
    from: pill.isGood ? SettingsTheme.accentTint : SettingsTheme.warningTint

    Accessible.role: Accessible.StaticText
    Accessible.name: pill.text

    Symbol {
        x: 10
        anchors.verticalCenter: parent.verticalCenter
        name: pill.symbol
        colour: pill.isGood ? SettingsTheme.accentInk : SettingsTheme.warning
        size: 16
    }
    Text {
        id: label

        x: 31
        anchors.verticalCenter: parent.verticalCenter
        text: pill.text
        color: pill.isGood ? SettingsTheme.accentInk : SettingsTheme.warning
        font.pixelSize: 13
        font.weight: Font.Bold
        Accessible.ignored: true
    }
}
