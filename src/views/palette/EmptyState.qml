import QtQuick
import Tovrel.Views

// Shown in place of the results when there are none.
Column {
    id: empty

    required property bool isQueryBlank

    readonly property string headline: empty.isQueryBlank ? qsTr("Start typing") : qsTr("No commands")
    readonly property string line: empty.isQueryBlank ? qsTr("Search the front app's menu commands")
                                                      : qsTr("Try a different keyword")

    spacing: 4

    Accessible.role: Accessible.StaticText
    Accessible.name: empty.headline + ". " + empty.line

    Rectangle {
        anchors.horizontalCenter: parent.horizontalCenter
        width: 64
        height: 64
        radius: Theme.radii.badge64
        color: Theme.colours.paletteAccentTint

        Symbol {
            anchors.centerIn: parent
            name: "leaf.fill"
            colour: Theme.colours.accent
            size: 34
        }
    }
    Item {
        width: 1
        height: 8
    }
    Text {
        anchors.horizontalCenter: parent.horizontalCenter
        text: empty.headline
        color: Theme.colours.ink
        font: Theme.fonts.heading
        Accessible.ignored: true
    }
    Text {
        anchors.horizontalCenter: parent.horizontalCenter
        text: empty.line
        color: Theme.colours.paletteQuiet
        font: Theme.fonts.smallBody
        Accessible.ignored: true
    }
}
