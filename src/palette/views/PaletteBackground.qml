import QtQuick

// The backdrop of the panel: a light gradient with a faded leaf.
Rectangle {
    id: background

    gradient: Gradient {
        GradientStop { position: 0; color: "#eaf8f2" }
        GradientStop { position: 0.5; color: "#f6f9ec" }
        GradientStop { position: 1; color: "#fff6e3" }
    }

    Item {
        anchors.fill: parent
        clip: true

        Symbol {
            x: parent.width - 132
            y: -44
            name: "leaf.fill"
            colour: "#19c8b9"
            size: 176
            opacity: 0.1
        }
    }
}
