import QtQuick
import Tovrel.Views

// A picker of a behaviour. An explanation of the behaviours is beside it, or below it when there is no room.
Flow {
    id: hint

    default property alias picker: holder.data

    spacing: Theme.settings.inner

    Item {
        id: holder

        width: childrenRect.width
        height: childrenRect.height
    }
    Text {
        width: Math.min(330, Math.max(200, hint.width - holder.width - Theme.settings.inner))
        height: Math.max(implicitHeight, holder.height)
        verticalAlignment: Text.AlignVCenter
        text: qsTr("Enabled opens Tovrel in this app. Disabled ignores the hotkey in this app.")
        color: Theme.colours.quiet
        font: Theme.fonts.smallBody
        wrapMode: Text.Wrap
        Accessible.role: Accessible.StaticText
        Accessible.name: text
    }
}
