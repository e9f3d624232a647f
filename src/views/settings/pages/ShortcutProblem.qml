import QtQuick
import Tovrel.Views

// Says that a shortcut does not work, and why; invisible while it works.
RoundedBox {
    id: notice

    required property RecorderAdapter recorder

    visible: notice.recorder.problem !== ""
    implicitHeight: message.height + 20
    radius: Theme.radii.field
    from: Theme.colours.warningTint

    Accessible.role: Accessible.StaticText
    Accessible.name: message.text

    Symbol {
        x: Theme.settings.rowPadding
        anchors.verticalCenter: parent.verticalCenter
        name: "exclamationmark.triangle"
        colour: Theme.colours.warning
        size: 18
    }
    Text {
        id: message

        anchors.left: parent.left
        anchors.leftMargin: 42
        anchors.right: parent.right
        anchors.rightMargin: Theme.settings.rowPadding
        anchors.verticalCenter: parent.verticalCenter
        text: qsTr("Not available: %1 Choose another one, or set it free there and refresh.").arg(notice.recorder.problem)
        color: Theme.colours.warning
        font: Theme.fonts.smallLabel
        lineHeight: 1.1
        wrapMode: Text.Wrap
        textFormat: Text.PlainText
        Accessible.ignored: true
    }
}
