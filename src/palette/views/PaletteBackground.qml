import QtQuick

// The backdrop of the panel: a light gradient with a faded leaf, and an edge that is to be seen on any desktop.
Rectangle {
    id: background

    property bool hasLeaf: true

    radius: 24
    border.width: 1
    border.color: "#c9d6c9"
    gradient: Gradient {
        GradientStop { position: 0; color: "#dff6ef" }
        GradientStop { position: 0.5; color: "#f1f6e3" }
        GradientStop { position: 1; color: "#fff1d3" }
    }

    // Cut off by the upper edge, clear of the round corner.
    Item {
        anchors.fill: parent
        anchors.margins: 1
        visible: background.hasLeaf
        clip: true

        Symbol {
            x: parent.width - 196
            y: -26
            name: "leaf.fill"
            colour: "#19c8b9"
            size: 176
            opacity: 0.12
        }
    }

    Rectangle {
        anchors.fill: parent
        anchors.margins: 1
        radius: 23
        color: "transparent"
        border.width: 1
        border.color: Qt.rgba(1, 1, 1, 0.6)
    }
}
