import QtQuick
import Tovrel.Views

// A labelled switch.
IslandPressable {
    id: toggle

    required property string title
    required property bool isOn

    signal toggled(bool isOn)

    implicitHeight: Math.max(48, label.height + 24)

    Accessible.role: Accessible.CheckBox
    Accessible.name: toggle.title
    Accessible.checkable: true
    Accessible.checked: toggle.isOn
    Accessible.onToggleAction: toggle.pressed()

    onPressed: toggle.toggled(!toggle.isOn)

    FocusRing {
        control: toggle
        controlRadius: 14
    }
    RoundedBox {
        anchors.fill: parent
        radius: 14
        from: toggle.isHovered ? "#f7efdb" : SettingsTheme.row
    }
    Text {
        id: label

        anchors.left: parent.left
        anchors.leftMargin: 14
        anchors.right: track.left
        anchors.rightMargin: SettingsTheme.gap
        anchors.verticalCenter: parent.verticalCenter
        text: toggle.title
        color: SettingsTheme.ink
        font.pixelSize: 14
        font.weight: Font.DemiBold
        wrapMode: Text.Wrap
        maximumLineCount: 3
        elide: Text.ElideRight
        textFormat: Text.PlainText
        Accessible.ignored: true
    }
    RoundedBox {
        id: track

        anchors.right: parent.right
        anchors.rightMargin: 14
        anchors.verticalCenter: parent.verticalCenter
        width: 42
        height: 24
        radius: 12
        isDiagonal: true
        from: toggle.isOn ? "#17bcae" : "#d9cfba"
        to: toggle.isOn ? "#35cdbf" : "#d9cfba"

        RoundedBox {
            anchors.verticalCenter: parent.verticalCenter
            x: toggle.isOn ? parent.width - width - 3 : 3
            width: 18
            height: 18
            radius: 9
            from: "white"
        }
    }
}
