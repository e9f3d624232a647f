import QtQuick
import Tovrel.Views

// A field for one line of text. What it is for is its placeholder, and its name.
RoundedBox {
    id: field

    required property string text
    required property string placeholder
    property string symbol: ""

    readonly property alias textInput: input

    signal edited(string text)
    signal accepted()

    implicitWidth: 240
    implicitHeight: 38
    radius: 13
    from: "white"
    borderWidth: input.activeFocus ? 2 : 1
    borderColour: input.activeFocus ? SettingsTheme.accent : SettingsTheme.line

    MouseArea {
        anchors.fill: parent
        cursorShape: Qt.IBeamCursor
        onPressed: mouse => {
            input.forceActiveFocus(Qt.MouseFocusReason);
            mouse.accepted = false;
        }
    }
    Symbol {
        id: icon

        x: 12
        anchors.verticalCenter: parent.verticalCenter
        visible: field.symbol !== ""
        name: field.symbol
        colour: SettingsTheme.faint
        size: 16
    }
    TextInput {
        id: input

        anchors.left: parent.left
        anchors.leftMargin: icon.visible ? 36 : 12
        anchors.right: parent.right
        anchors.rightMargin: 12
        anchors.verticalCenter: parent.verticalCenter
        text: field.text
        color: SettingsTheme.ink
        font.pixelSize: 14
        font.weight: Font.Medium
        selectionColor: SettingsTheme.accent
        selectedTextColor: "white"
        selectByMouse: true
        activeFocusOnTab: true
        // Room for the cursor before the first character.
        leftPadding: 2
        clip: true
        focus: true
        cursorDelegate: Rectangle {
            id: cursor

            readonly property TextInput field: cursor.parent as TextInput

            width: 2
            radius: 1
            color: SettingsTheme.accent
            visible: cursor.field !== null && cursor.field.cursorVisible
        }

        onTextChanged: {
            if (input.text !== field.text)
                field.edited(input.text);
        }
        onAccepted: field.accepted()

        Accessible.role: Accessible.EditableText
        Accessible.name: field.placeholder

        Text {
            anchors.fill: parent
            anchors.leftMargin: 4
            visible: input.text === "" && input.preeditText === ""
            text: field.placeholder
            color: SettingsTheme.faint
            font: input.font
            elide: Text.ElideRight
            textFormat: Text.PlainText
            Accessible.ignored: true
        }
    }
}
