import QtQuick
import Tovrel.Views

// A control to choose one of a few choices, side by side in their order. The arrow keys choose.
FocusScope {
    id: picker

    required property string name
    required property list<string> labels
    required property int selection
    property real maximumWidth: 10000

    signal chosen(int index)

    function choose(index: int) {
        if (index >= 0 && index < picker.labels.length && index !== picker.selection)
            picker.chosen(index);
    }

    implicitWidth: Math.min(picker.maximumWidth, segments.count * Math.ceil(track.widest) + 6)
    implicitHeight: Theme.settings.controlHeight
    activeFocusOnTab: true

    Accessible.role: Accessible.Grouping
    Accessible.name: picker.name
    Accessible.description: picker.labels[picker.selection]
    Accessible.focusable: true

    Keys.onLeftPressed: picker.choose(picker.selection - 1)
    Keys.onUpPressed: picker.choose(picker.selection - 1)
    Keys.onRightPressed: picker.choose(picker.selection + 1)
    Keys.onDownPressed: picker.choose(picker.selection + 1)

    FocusRing {
        control: picker
        controlRadius: Theme.radii.button
    }
    RoundedBox {
        anchors.fill: parent
        radius: Theme.radii.button
        from: Theme.colours.trough
    }
    SegmentTrack {
        id: track

        x: 3
        y: 3
        selection: picker.selection
        cellWidth: (picker.width - 6) / Math.max(1, picker.labels.length)
        cellHeight: picker.height - 6
        onChosen: index => picker.choose(index)

        Repeater {
            id: segments

            model: picker.labels

            delegate: IslandSegment {
                required property int index
                required property string modelData
                readonly property SegmentTrack track: parent as SegmentTrack

                width: track ? track.cellWidth : 0
                height: track ? track.cellHeight : 0
                text: modelData
                isSelected: track !== null && index === track.selection
                onChosen: track.chosen(index)
                onTextWidthChanged: widen()
                onTrackChanged: widen()

                function widen() {
                    if (track)
                        track.widest = Math.max(track.widest, textWidth + 32);
                }
            }
        }
    }
}
