import QtQuick
import Tovrel.Views

// One of the choices of an IslandSegmentedPicker.
Item {
    id: segment

    required property string text
    required property bool isSelected

    readonly property real textWidth: label.implicitWidth

    signal chosen()

    Accessible.role: Accessible.RadioButton
    Accessible.name: segment.text
    Accessible.checkable: true
    Accessible.checked: segment.isSelected
    Accessible.onPressAction: segment.chosen()

    RoundedBox {
        anchors.fill: parent
        visible: segment.isSelected
        radius: 11
        isDiagonal: true
        from: "#17bcae"
        to: "#35cdbf"
    }
    RoundedBox {
        anchors.fill: parent
        visible: hover.hovered && !segment.isSelected
        radius: 11
        from: "#b3ffffff"
    }
    Text {
        id: label

        anchors.centerIn: parent
        width: Math.min(implicitWidth, segment.width - 12)
        text: segment.text
        color: segment.isSelected ? "white" : SettingsTheme.quiet
        font.pixelSize: 13
        font.weight: Font.Bold
        elide: Text.ElideRight
        textFormat: Text.PlainText
        Accessible.ignored: true
    }
    HoverHandler {
        id: hover
    }
    TapHandler {
        onTapped: segment.chosen()
    }
}
