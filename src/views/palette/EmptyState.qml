import QtQuick

// What stands in the place of the results when there are none.
Column {
    id: empty

    required property bool isQueryBlank

    readonly property string headline: empty.isQueryBlank ? qsTr("Start typing") : qsTr("No commands")
    readonly property string line: empty.isQueryBlank ? qsTr("Search the front app's menu commands")
                                                      : qsTr("Try a different keyword")

    spacing: 4

    Accessible.role: Accessible.StaticText
    Accessible.name: empty.headline + ". " + empty.line

    Rectangle {
        anchors.horizontalCenter: parent.horizontalCenter
        width: 64
        height: 64
        radius: 24
        color: "#e6f9f6"

        Symbol {
            anchors.centerIn: parent
            name: "leaf.fill"
            colour: "#19c8b9"
            size: 34
        }
    }
    Item {
        width: 1
        height: 8
    }
    Text {
        anchors.horizontalCenter: parent.horizontalCenter
        text: empty.headline
        color: "#40382c"
        font.pixelSize: 18
        font.weight: Font.ExtraBold
        Accessible.ignored: true
    }
    Text {
        anchors.horizontalCenter: parent.horizontalCenter
        text: empty.line
        color: "#8a7b66"
        font.pixelSize: 13
        font.weight: Font.Medium
        Accessible.ignored: true
    }
}
