import QtQuick
import Tovrel.Views

// A labelled switch.
IslandPressable {
    id: toggle

    required property string title
    required property bool isOn

    signal toggled(bool isOn)

    implicitHeight: Math.max(Theme.settings.toggleHeight, label.height + 24)

    Accessible.role: Accessible.CheckBox
    Accessible.name: toggle.title
    Accessible.checkable: true
    Accessible.checked: toggle.isOn
    Accessible.onToggleAction: toggle.pressed()

    onPressed: toggle.toggled(!toggle.isOn)

    FocusRing {
        control: toggle
        controlRadius: Theme.radii.row
    }
    RoundedBox {
        anchors.fill: parent
        radius: Theme.radii.row
        from: toggle.isHovered ? Theme.colours.rowHovered : Theme.colours.row
    }
    Text {
        id: label

        anchors.left: parent.left
        anchors.leftMargin: Theme.settings.rowPadding
        anchors.right: track.left
        anchors.rightMargin: Theme.settings.gap
        anchors.verticalCenter: parent.verticalCenter
        text: toggle.title
        color: Theme.colours.ink
        font: Theme.fonts.label
        wrapMode: Text.Wrap
        maximumLineCount: 3
        elide: Text.ElideRight
        textFormat: Text.PlainText
        Accessible.ignored: true
    }
    RoundedBox {
        id: track

        anchors.right: parent.right
        anchors.rightMargin: Theme.settings.rowPadding
        anchors.verticalCenter: parent.verticalCenter
        width: 42
        height: 24
        radius: track.height / 2
        isDiagonal: true
        from: toggle.isOn ? Theme.colours.chosen : Theme.colours.toggleOff
        to: toggle.isOn ? Theme.colours.chosenLight : Theme.colours.toggleOff

        RoundedBox {
            anchors.verticalCenter: parent.verticalCenter
            x: toggle.isOn ? parent.width - width - 3 : 3
            width: 18
            height: 18
            radius: height / 2
            from: Theme.colours.toggleKnob
        }
    }
}
