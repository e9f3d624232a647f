import QtQuick
import Tovrel.Views

// Shows how far a view is scrolled, while there is anything to scroll, and scrolls it when dragged.
Item {
    id: bar

    required property Flickable flickable

    readonly property real range: bar.flickable.contentHeight + bar.flickable.bottomMargin - bar.flickable.height
    readonly property real free: bar.height - knob.height

    width: 10
    visible: bar.range > 1

    Rectangle {
        id: knob

        x: 3
        y: bar.range > 0
           ? Math.max(0, Math.min(1, (bar.flickable.contentY - bar.flickable.originY) / bar.range)) * bar.free : 0
        width: 5
        height: Math.max(28, bar.height * bar.flickable.height
                             / Math.max(1, bar.flickable.contentHeight + bar.flickable.bottomMargin))
        radius: knob.width / 2
        color: area.containsMouse || area.pressed ? Theme.colours.scrollKnobHovered : Theme.colours.scrollKnob
    }
    MouseArea {
        id: area

        property real grip: 0

        anchors.fill: parent
        hoverEnabled: true
        preventStealing: true
        onPressed: mouse => {
            area.grip = mouse.y >= knob.y && mouse.y <= knob.y + knob.height ? mouse.y - knob.y : knob.height / 2;
        }
        onPositionChanged: mouse => {
            if (area.pressed && bar.free > 0) {
                const share = Math.max(0, Math.min(1, (mouse.y - area.grip) / bar.free));
                bar.flickable.contentY = bar.flickable.originY + share * bar.range;
            }
        }
    }
}
