import QtQuick
import Tovrel.Views

// An application's icon, or the picture of a window if it has none.
Item {
    id: icon

    required property url source
    required property int size

    width: icon.size
    height: icon.size

    Image {
        id: image

        anchors.fill: parent
        visible: image.status === Image.Ready
        source: icon.source
        sourceSize.width: icon.size
        sourceSize.height: icon.size
        fillMode: Image.PreserveAspectFit
        Accessible.ignored: true
    }
    SettingsIcon {
        anchors.fill: parent
        visible: !image.visible
        name: "macwindow"
    }
}
