import QtQuick
import Tovrel.Views

// The headings of the columns in the list of rules.
Item {
    id: columns

    readonly property real identifierStart: columns.width * Theme.settings.ruleIdentifierShare
    readonly property real behaviorStart: columns.width - Theme.settings.ruleBehaviorWidth
                                        - Theme.settings.ruleButtonWidth

    height: 20

    component Heading: Text {
        height: 20
        verticalAlignment: Text.AlignVCenter
        color: Theme.colours.quiet
        font: Theme.fonts.columnHeading
        elide: Text.ElideRight
    }

    Heading {
        x: Theme.settings.ruleNameStart
        width: columns.identifierStart - Theme.settings.ruleNameStart - Theme.settings.gap
        text: qsTr("Name")
    }
    Heading {
        x: columns.identifierStart
        width: columns.behaviorStart - columns.identifierStart - Theme.settings.gap
        text: qsTr("Bundle ID")
    }
    Heading {
        x: columns.behaviorStart
        width: Theme.settings.ruleBehaviorWidth
        text: qsTr("Behavior")
    }
}
