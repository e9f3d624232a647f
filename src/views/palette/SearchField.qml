import QtQuick
import Tovrel.Views

// The field the query is typed into, with the name of the application it searches.
RoundedBox {
    id: field

    required property string query
    required property string appName

    readonly property alias textInput: input

    signal edited(string text)
    signal submitted()
    signal dismissed()
    signal moved(int delta)

    function takeFocus() {
        input.forceActiveFocus();
    }

    implicitHeight: 48
    radius: 18
    from: input.activeFocus ? "white" : "#99ffffff"
    borderWidth: input.activeFocus ? 2 : 1
    borderColour: input.activeFocus ? "#19c8b9" : "#408a7b66"

    MouseArea {
        anchors.fill: parent
        cursorShape: Qt.IBeamCursor
        onPressed: mouse => {
            field.takeFocus();
            mouse.accepted = false;
        }
    }

    TextInput {
        id: input

        anchors.left: parent.left
        anchors.leftMargin: 16
        anchors.right: capsule.visible ? capsule.left : parent.right
        anchors.rightMargin: capsule.visible ? 12 : 16
        anchors.verticalCenter: parent.verticalCenter
        text: field.query
        color: "#40382c"
        font.pixelSize: 26
        font.weight: Font.ExtraBold
        selectionColor: "#19c8b9"
        selectedTextColor: "white"
        selectByMouse: true
        // Room for the cursor before the first character.
        leftPadding: 2
        clip: true
        focus: true
        cursorDelegate: Rectangle {
            id: cursor

            readonly property TextInput field: cursor.parent as TextInput

            width: 2
            radius: 1
            color: "#19c8b9"
            visible: cursor.field !== null && cursor.field.cursorVisible
        }

        onTextChanged: {
            if (input.text !== field.query)
                field.edited(input.text);
        }
        onAccepted: field.submitted()
        Keys.onEscapePressed: field.dismissed()
        Keys.onUpPressed: field.moved(-1)
        Keys.onDownPressed: field.moved(1)

        Accessible.role: Accessible.EditableText
        Accessible.name: qsTr("Commands")
        Accessible.description: field.appName

        Text {
            anchors.fill: parent
            anchors.leftMargin: 5
            visible: input.text === "" && input.preeditText === ""
            text: qsTr("Commands")
            color: "#b3a793"
            font: input.font
            elide: Text.ElideRight
            Accessible.ignored: true
        }
    }

    RoundedBox {
        id: capsule

        anchors.right: parent.right
        anchors.rightMargin: 12
        anchors.verticalCenter: parent.verticalCenter
        visible: field.appName !== ""
        width: name.width + 24
        height: 28
        radius: 14
        from: "#e6f9f6"

        Text {
            id: name

            anchors.centerIn: parent
            width: Math.min(implicitWidth, 176)
            text: field.appName
            color: "#0f8a80"
            font.pixelSize: 13
            font.weight: Font.Bold
            elide: Text.ElideRight
            textFormat: Text.PlainText
            Accessible.ignored: true
        }
    }
}
