import QtQuick
import Tovrel.Views

// Shown in a card that has nothing to list.
Column {
    id: empty

    required property string symbol
    required property string text

    topPadding: 10
    bottomPadding: 14
    spacing: 10

    Accessible.role: Accessible.StaticText
    Accessible.name: empty.text

    SettingsIcon {
        anchors.horizontalCenter: parent.horizontalCenter
        width: Theme.settings.largeIcon
        height: Theme.settings.largeIcon
        radius: Theme.radii.badge52
        name: empty.symbol
    }
    Text {
        width: empty.width
        horizontalAlignment: Text.AlignHCenter
        text: empty.text
        color: Theme.colours.quiet
        font: Theme.fonts.label
        wrapMode: Text.Wrap
        Accessible.ignored: true
    }
}
