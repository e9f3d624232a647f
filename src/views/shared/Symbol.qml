import QtQuick

// One of the program's own symbols, in a colour.
Image {
    id: symbol

    required property string name
    required property color colour
    required property int size

    width: symbol.size
    height: symbol.size
    source: symbol.name === "" ? "" : "image://symbol/" + symbol.name + "/" + symbol.colour
    sourceSize.width: symbol.size
    sourceSize.height: symbol.size
    Accessible.ignored: true
}
