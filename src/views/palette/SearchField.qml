import QtQuick
import Tovrel.Views

// The field for the query, with the name of the application that it searches.
IslandTextField {
    id: field

    required property string appName

    signal dismissed()
    signal moved(int delta)

    function takeFocus() {
        field.textInput.forceActiveFocus();
    }

    look: Theme.fields.query
    placeholder: qsTr("Commands")
    description: field.appName

    Keys.onEscapePressed: field.dismissed()
    Keys.onUpPressed: field.moved(-1)
    Keys.onDownPressed: field.moved(1)

    RoundedBox {
        id: capsule

        visible: field.appName !== ""
        width: capsule.visible ? name.width + 24 : 0
        height: Theme.palette.capsuleHeight
        radius: capsule.height / 2
        from: Theme.colours.paletteAccentTint

        Text {
            id: name

            anchors.centerIn: parent
            width: Math.min(implicitWidth, 176)
            text: field.appName
            color: Theme.colours.paletteAccentInk
            font: Theme.fonts.tag
            elide: Text.ElideRight
            textFormat: Text.PlainText
            Accessible.ignored: true
        }
    }
}
