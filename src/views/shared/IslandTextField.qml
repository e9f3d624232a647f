import QtQuick
import Tovrel.Views

// A field for one line of text, of one of the kinds in Theme.fields. The placeholder says what it is for and is its
// name. Child items are placed at the field's end.
RoundedBox {
    id: field

    required property string text
    required property string placeholder
    property string description: ""
    property FieldLook look: Theme.fields.form
    property string symbol: ""
    default property alias ending: holder.data

    readonly property int endingGap: 12
    readonly property alias textInput: input

    signal edited(string text)
    signal accepted()

    implicitWidth: 240
    implicitHeight: field.look.height
    radius: field.look.radius
    from: input.activeFocus ? field.look.fill : field.look.fillAtRest
    borderWidth: input.activeFocus ? 2 : 1
    borderColour: input.activeFocus ? Theme.colours.accent : Theme.colours.line

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

        x: field.look.inset
        anchors.verticalCenter: parent.verticalCenter
        visible: field.symbol !== ""
        name: field.symbol
        colour: Theme.colours.faint
        size: Theme.settings.controlSymbol
    }
    TextInput {
        id: input

        anchors.left: parent.left
        anchors.leftMargin: icon.visible ? icon.x + icon.width + 8 : field.look.inset
        anchors.right: holder.left
        anchors.rightMargin: holder.width > 0 ? field.endingGap : field.look.inset
        anchors.verticalCenter: parent.verticalCenter
        text: field.text
        color: Theme.colours.ink
        font: field.look.font
        selectionColor: Theme.colours.accent
        selectedTextColor: Theme.colours.textOnAccent
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
            radius: cursor.width / 2
            color: Theme.colours.accent
            visible: cursor.field !== null && cursor.field.cursorVisible
        }

        onTextChanged: {
            if (input.text !== field.text)
                field.edited(input.text);
        }
        onAccepted: field.accepted()

        Accessible.role: Accessible.EditableText
        Accessible.name: field.placeholder
        Accessible.description: field.description

        Text {
            anchors.fill: parent
            anchors.leftMargin: field.look.placeholderInset
            visible: input.text === "" && input.preeditText === ""
            text: field.placeholder
            color: field.look.placeholder
            font: input.font
            elide: Text.ElideRight
            textFormat: Text.PlainText
            Accessible.ignored: true
        }
    }
    Item {
        id: holder

        anchors.right: parent.right
        anchors.rightMargin: holder.width > 0 ? field.endingGap : 0
        anchors.verticalCenter: parent.verticalCenter
        width: childrenRect.width
        height: childrenRect.height
    }
}
