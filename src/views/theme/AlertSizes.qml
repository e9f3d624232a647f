import QtQuick

// Measures of a question, in pixels. Its texts determine its height.
QtObject {
    readonly property int width: 464
    readonly property int inset: 24
    readonly property int badge: 48
    readonly property int answerHeight: 40
}
