import QtQuick
import Tovrel.Views

// The field in which a global shortcut is set.
Item {
    id: field

    required property RecorderAdapter recorder
    required property string name

    implicitWidth: Math.max(130, Math.ceil(Math.max(label.implicitWidth, hint.implicitWidth)) + 56)
    implicitHeight: Theme.settings.recorderHeight

    FocusRing {
        control: input
        controlRadius: Theme.radii.field
    }
    RoundedBox {
        anchors.fill: parent
        radius: Theme.radii.field
        from: field.recorder.isRecording ? Theme.colours.fieldRecording : Theme.colours.field
        borderWidth: field.recorder.isRecording ? 2 : 1
        borderColour: field.recorder.isRecording ? Theme.colours.accent : Theme.colours.line
    }
    RecorderInput {
        id: input

        objectName: "recorder"
        anchors.fill: parent
        recorder: field.recorder

        Accessible.role: Accessible.EditableText
        Accessible.name: field.name
        Accessible.description: field.recorder.isRecording || field.recorder.text === ""
                                ? field.recorder.placeholder : field.recorder.text
        Accessible.focusable: true
        Accessible.onPressAction: input.record()
    }
    Text {
        id: label

        anchors.centerIn: parent
        width: Math.min(implicitWidth, field.width - 52)
        text: field.recorder.text
        color: Theme.colours.ink
        font: Theme.fonts.name
        elide: Text.ElideRight
        textFormat: Text.PlainText
        Accessible.ignored: true
    }
    Text {
        id: hint

        anchors.centerIn: parent
        width: Math.min(implicitWidth, field.width - 24)
        visible: field.recorder.text === ""
        text: field.recorder.placeholder
        color: field.recorder.isRecording ? Theme.colours.accentInk : Theme.colours.quiet
        font: Theme.fonts.smallBody
        elide: Text.ElideRight
        textFormat: Text.PlainText
        Accessible.ignored: true
    }
    TapHandler {
        onTapped: input.record()
    }
    Item {
        anchors.right: parent.right
        width: 30
        height: parent.height
        visible: field.recorder.text !== ""

        Accessible.role: Accessible.Button
        Accessible.name: qsTr("Clear %1").arg(field.name)
        Accessible.onPressAction: field.recorder.clear()

        Symbol {
            anchors.centerIn: parent
            name: "xmark.circle.fill"
            colour: hover.hovered ? Theme.colours.quiet : Theme.colours.fieldClearer
            size: Theme.settings.controlSymbol
        }
        HoverHandler {
            id: hover
        }
        TapHandler {
            objectName: "clear"
            gesturePolicy: TapHandler.ReleaseWithinBounds
            onTapped: field.recorder.clear()
        }
    }
}
