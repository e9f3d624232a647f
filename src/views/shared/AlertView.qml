import QtQuick
import Tovrel.Views

// A warning with one answer or two. Escape closes it without an answer, wherever the focus is.
FocusScope {
    id: view

    required property AlertQuestion question

    // The shape of the window and the colour of its edge where it cannot be transparent.
    readonly property real cornerRadius: backdrop.cornerRadius
    readonly property color edge: backdrop.edge

    signal moveWanted()

    implicitWidth: Theme.alert.width
    implicitHeight: texts.y + texts.height + first.implicitHeight + 2 * Theme.alert.inset
    focus: true

    Keys.onEscapePressed: view.question.dismiss()

    Accessible.role: Accessible.AlertMessage
    Accessible.name: view.question.messageText
    Accessible.description: view.question.informativeText

    PaletteBackground {
        id: backdrop

        anchors.fill: parent
        hasLeaf: false
    }
    WindowDragArea {
        anchors.fill: parent
        onMoveWanted: view.moveWanted()
    }

    Rectangle {
        id: badge

        x: Theme.alert.inset
        y: Theme.alert.inset
        width: Theme.alert.badge
        height: Theme.alert.badge
        radius: Theme.radii.badge48
        color: Theme.colours.alertSignTint

        Symbol {
            anchors.centerIn: parent
            name: "exclamationmark.triangle"
            colour: Theme.colours.alertSign
            size: 28
        }
    }
    Column {
        id: texts

        anchors.left: badge.right
        anchors.leftMargin: 16
        anchors.right: parent.right
        anchors.rightMargin: Theme.alert.inset
        y: 26
        spacing: 6

        Text {
            width: texts.width
            text: view.question.messageText
            color: Theme.colours.ink
            font: Theme.fonts.heading
            wrapMode: Text.Wrap
            maximumLineCount: 4
            elide: Text.ElideRight
            textFormat: Text.PlainText
        }
        Text {
            width: texts.width
            text: view.question.informativeText
            color: Theme.colours.quiet
            font: Theme.fonts.body
            lineHeight: 1.15
            wrapMode: Text.Wrap
            maximumLineCount: 8
            elide: Text.ElideRight
            textFormat: Text.PlainText
        }
    }

    IslandButton {
        id: second

        anchors.right: first.left
        anchors.rightMargin: 12
        anchors.bottom: first.bottom
        visible: second.text !== ""
        text: view.question.secondButton
        look: Theme.buttons.answer
        onPressed: view.question.answer(false)
        KeyNavigation.right: first
    }
    IslandButton {
        id: first

        anchors.right: parent.right
        anchors.rightMargin: Theme.alert.inset
        anchors.bottom: parent.bottom
        anchors.bottomMargin: Theme.alert.inset
        text: view.question.firstButton
        look: Theme.buttons.defaultAnswer
        isDefault: true
        focus: true
        onPressed: view.question.answer(true)
        KeyNavigation.left: second
    }
}
