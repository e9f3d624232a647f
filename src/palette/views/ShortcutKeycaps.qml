import QtQuick

// A shortcut as a row of key caps.
Item {
    id: keycaps

    required property list<string> texts
    required property bool isSelected

    // What all caps of the row share.
    component Caps: Row {
        required property color ink
        required property color stroke
    }

    implicitWidth: caps.implicitWidth
    implicitHeight: 23

    Caps {
        id: caps

        spacing: 4
        ink: keycaps.isSelected ? "white" : "#7a6c58"
        stroke: Qt.alpha(caps.ink, keycaps.isSelected ? 0.42 : 0.26)

        Repeater {
            model: keycaps.texts

            delegate: Rectangle {
                id: cap

                required property string modelData
                readonly property Caps row: cap.parent as Caps

                width: Math.max(23, Math.ceil(label.implicitWidth) + (cap.modelData.length > 1 ? 12 : 0))
                height: 23
                radius: 11.5
                color: "transparent"
                border.width: 1.5
                border.pixelAligned: false
                border.color: cap.row ? cap.row.stroke : "transparent"

                Text {
                    id: label

                    anchors.centerIn: parent
                    text: cap.modelData
                    color: cap.row ? cap.row.ink : "transparent"
                    font.pixelSize: 12
                    font.weight: Font.ExtraBold
                    textFormat: Text.PlainText
                }
            }
        }
    }
}
