import QtQuick
import Tovrel.Views

// One saved rule, in the columns of AppRuleColumns.
RoundedBox {
    id: row

    required property int index
    required property string rowID
    required property string title
    required property url icon
    required property string value
    required property AppsSettings rules

    signal reached()

    implicitHeight: 52
    radius: 14
    from: SettingsTheme.row

    Accessible.role: Accessible.ListItem
    Accessible.name: row.title
    Accessible.description: row.value

    AppIcon {
        x: 12
        anchors.verticalCenter: parent.verticalCenter
        source: row.icon
        size: 30
    }
    Text {
        x: 54
        anchors.verticalCenter: parent.verticalCenter
        width: row.width * 0.36 - 66
        text: row.title
        color: SettingsTheme.ink
        font.pixelSize: 14
        font.weight: Font.Bold
        elide: Text.ElideRight
        textFormat: Text.PlainText
        Accessible.ignored: true
    }
    Text {
        x: row.width * 0.36
        anchors.verticalCenter: parent.verticalCenter
        width: row.width * 0.64 - 208
        text: row.rowID
        color: SettingsTheme.quiet
        font.pixelSize: 12
        font.weight: Font.Medium
        elide: Text.ElideMiddle
        textFormat: Text.PlainText
        Accessible.ignored: true
    }
    IslandPicker {
        objectName: "behavior"
        x: row.width - 196
        anchors.verticalCenter: parent.verticalCenter
        width: 140
        compact: true
        name: qsTr("Behavior of %1").arg(row.title)
        choices: row.rules ? row.rules.behaviors : null
        selectedID: row.rules ? row.rules.behaviors.idOf(row.value) : ""
        text: row.value
        onChosen: id => row.rules.setBehavior(row.rowID, id)
        onActiveFocusChanged: {
            if (activeFocus)
                row.reached();
        }
    }
    IslandIconButton {
        objectName: "remove"
        anchors.right: parent.right
        anchors.rightMargin: 10
        anchors.verticalCenter: parent.verticalCenter
        role: "danger"
        symbol: "trash"
        text: qsTr("Remove %1").arg(row.title)
        onPressed: row.rules.removeRule(row.rowID)
        onActiveFocusChanged: {
            if (activeFocus)
                row.reached();
        }
    }
}
