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
        radius: Theme.radii.choice
        isDiagonal: true
        from: Theme.colours.chosen
        to: Theme.colours.chosenLight
    }
    RoundedBox {
        anchors.fill: parent
        visible: hover.hovered && !segment.isSelected
        radius: Theme.radii.choice
        from: Theme.colours.segmentHovered
    }
    Text {
        id: label

        anchors.centerIn: parent
        width: Math.min(implicitWidth, segment.width - 12)
        text: segment.text
        color: segment.isSelected ? Theme.colours.textOnAccent : Theme.colours.quiet
        font: Theme.fonts.tag
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
