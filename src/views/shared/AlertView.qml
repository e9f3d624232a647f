import QtQuick
import Tovrel.Views

// A warning with two answers, or one. Escape gives none, wherever the focus is.
FocusScope {
    id: view

    required property AlertQuestion question

    signal moveWanted()

    implicitWidth: 464
    implicitHeight: texts.y + texts.height + 24 + first.implicitHeight + 24
    focus: true

    Keys.onEscapePressed: view.question.dismiss()

    Accessible.role: Accessible.AlertMessage
    Accessible.name: view.question.messageText
    Accessible.description: view.question.informativeText

    PaletteBackground {
        anchors.fill: parent
        hasLeaf: false
    }
    WindowDragArea {
        anchors.fill: parent
        onMoveWanted: view.moveWanted()
    }

    Rectangle {
        id: badge

        x: 24
        y: 24
        width: 48
        height: 48
        radius: 18
        color: "#fff2ca"

        Symbol {
            anchors.centerIn: parent
            name: "exclamationmark.triangle"
            colour: "#e0a127"
            size: 28
        }
    }
    Column {
        id: texts

        anchors.left: badge.right
        anchors.leftMargin: 16
        anchors.right: parent.right
        anchors.rightMargin: 24
        y: 26
        spacing: 6

        Text {
            width: texts.width
            text: view.question.messageText
            color: "#40382c"
            font.pixelSize: 18
            font.weight: Font.ExtraBold
            wrapMode: Text.Wrap
            maximumLineCount: 4
            elide: Text.ElideRight
            textFormat: Text.PlainText
        }
        Text {
            width: texts.width
            text: view.question.informativeText
            color: "#7a6c58"
            font.pixelSize: 14
            font.weight: Font.Medium
            lineHeight: 1.15
            wrapMode: Text.Wrap
            maximumLineCount: 8
            elide: Text.ElideRight
            textFormat: Text.PlainText
        }
    }

    AlertButton {
        id: second

        anchors.right: first.left
        anchors.rightMargin: 12
        anchors.bottom: first.bottom
        visible: second.text !== ""
        text: view.question.secondButton
        isDefault: false
        onPressed: view.question.answer(false)
        KeyNavigation.right: first
    }
    AlertButton {
        id: first

        anchors.right: parent.right
        anchors.rightMargin: 24
        anchors.bottom: parent.bottom
        anchors.bottomMargin: 24
        text: view.question.firstButton
        isDefault: true
        focus: true
        onPressed: view.question.answer(true)
        KeyNavigation.left: second
    }
}
