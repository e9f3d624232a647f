import QtQuick
import Tovrel.Views

// What the columns of the list of rules are called, above them.
Item {
    id: columns

    height: 20

    component Heading: Text {
        height: 20
        verticalAlignment: Text.AlignVCenter
        color: SettingsTheme.quiet
        font.pixelSize: 12
        font.weight: Font.Bold
        elide: Text.ElideRight
    }

    Heading {
        x: 54
        width: columns.width * 0.36 - 66
        text: qsTr("Name")
    }
    Heading {
        x: columns.width * 0.36
        width: columns.width * 0.64 - 208
        text: qsTr("Bundle ID")
    }
    Heading {
        x: columns.width - 196
        width: 140
        text: qsTr("Behavior")
    }
}
