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

    readonly property real identifierStart: row.width * Theme.settings.ruleIdentifierShare
    readonly property real behaviorStart: row.width - Theme.settings.ruleBehaviorWidth
                                        - Theme.settings.ruleButtonWidth

    signal reached()

    implicitHeight: Theme.settings.rowHeight
    radius: Theme.radii.row
    from: Theme.colours.row

    Accessible.role: Accessible.ListItem
    Accessible.name: row.title
    Accessible.description: row.value

    AppIcon {
        x: Theme.settings.rowStart
        anchors.verticalCenter: parent.verticalCenter
        source: row.icon
        size: Theme.settings.rowIcon
    }
    Text {
        x: Theme.settings.ruleNameStart
        anchors.verticalCenter: parent.verticalCenter
        width: row.identifierStart - Theme.settings.ruleNameStart - Theme.settings.gap
        text: row.title
        color: Theme.colours.ink
        font: Theme.fonts.name
        elide: Text.ElideRight
        textFormat: Text.PlainText
        Accessible.ignored: true
    }
    Text {
        x: row.identifierStart
        anchors.verticalCenter: parent.verticalCenter
        width: row.behaviorStart - row.identifierStart - Theme.settings.gap
        text: row.rowID
        color: Theme.colours.quiet
        font: Theme.fonts.detail
        elide: Text.ElideMiddle
        textFormat: Text.PlainText
        Accessible.ignored: true
    }
    IslandPicker {
        objectName: "behavior"
        x: row.behaviorStart
        anchors.verticalCenter: parent.verticalCenter
        width: Theme.settings.ruleBehaviorWidth
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
        anchors.rightMargin: Theme.settings.rowEnd
        anchors.verticalCenter: parent.verticalCenter
        look: Theme.buttons.dangerIcon
        symbol: "trash"
        text: qsTr("Remove %1").arg(row.title)
        onPressed: row.rules.removeRule(row.rowID)
        onActiveFocusChanged: {
            if (activeFocus)
                row.reached();
        }
    }
}
