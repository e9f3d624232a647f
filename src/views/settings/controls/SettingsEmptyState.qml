import QtQuick
import Tovrel.Views

// What a card says when it has nothing to list.
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
        width: 52
        height: 52
        radius: 19
        name: empty.symbol
    }
    Text {
        width: empty.width
        horizontalAlignment: Text.AlignHCenter
        text: empty.text
        color: SettingsTheme.quiet
        font.pixelSize: 14
        font.weight: Font.DemiBold
        wrapMode: Text.Wrap
        Accessible.ignored: true
    }
}
