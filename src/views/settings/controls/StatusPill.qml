import QtQuick
import Tovrel.Views

// A state in one or two words, with an icon.
RoundedBox {
    id: pill

    required property string symbol
    required property string text
    property bool isGood: true

    implicitWidth: Math.ceil(label.implicitWidth) + 42
    implicitHeight: Theme.settings.pillHeight
    radius: pill.height / 2
    from: pill.isGood ? Theme.colours.accentTint : Theme.colours.warningTint

    Accessible.role: Accessible.StaticText
    Accessible.name: pill.text

    Symbol {
        x: 10
        anchors.verticalCenter: parent.verticalCenter
        name: pill.symbol
        colour: pill.isGood ? Theme.colours.accentInk : Theme.colours.warning
        size: Theme.settings.controlSymbol
    }
    Text {
        id: label

        x: 31
        anchors.verticalCenter: parent.verticalCenter
        text: pill.text
        color: pill.isGood ? Theme.colours.accentInk : Theme.colours.warning
        font: Theme.fonts.tag
        Accessible.ignored: true
    }
}
