import QtQuick
import Tovrel.Views

// The page "Apps".
SettingsPage {
    id: page

    required property SettingsViewAdapter settings

    readonly property AppsSettings rules: page.settings.apps

    // Asks for a dialog to choose an application; the keyboard focus comes back to the button afterwards.
    signal choiceWanted(button: Item)

    SettingsCard {
        width: parent.width
        symbol: "gearshape"
        title: qsTr("Default Behavior")
        text: qsTr("What Tovrel does in apps with no saved rule.")

        BehaviorHint {
            width: parent.width

            IslandSegmentedPicker {
                objectName: "defaultBehavior"
                name: qsTr("Default Behavior")
                labels: page.rules.behaviorLabels
                selection: page.rules.defaultBehavior
                maximumWidth: Theme.settings.segmentsWidth
                onChosen: index => page.rules.setDefaultBehavior(index)
            }
        }
    }
    SettingsCard {
        width: parent.width
        symbol: "macwindow"
        title: qsTr("Current Application")
        text: qsTr("Frontmost app. Changing this creates or updates its saved rule.")

        Item {
            width: parent.width
            height: 44
            visible: page.rules.hasCurrentApplication

            Accessible.role: Accessible.StaticText
            Accessible.name: page.rules.currentName
            Accessible.description: page.rules.currentBundleID

            AppIcon {
                id: currentIcon

                anchors.verticalCenter: parent.verticalCenter
                source: page.rules.currentIcon
                size: Theme.settings.icon
            }
            Column {
                anchors.left: currentIcon.right
                anchors.leftMargin: Theme.settings.gap
                anchors.right: parent.right
                anchors.verticalCenter: parent.verticalCenter

                Text {
                    objectName: "currentName"
                    width: parent.width
                    text: page.rules.currentName
                    color: Theme.colours.ink
                    font: Theme.fonts.applicationName
                    elide: Text.ElideRight
                    textFormat: Text.PlainText
                }
                Text {
                    width: parent.width
                    text: page.rules.currentBundleID
                    color: Theme.colours.quiet
                    font: Theme.fonts.detail
                    elide: Text.ElideMiddle
                    textFormat: Text.PlainText
                }
            }
        }
        BehaviorHint {
            width: parent.width
            visible: page.rules.hasCurrentApplication

            IslandSegmentedPicker {
                objectName: "currentBehavior"
                name: qsTr("Current Application")
                labels: page.rules.behaviorLabels
                selection: page.rules.currentBehavior
                maximumWidth: Theme.settings.segmentsWidth
                onChosen: index => page.rules.setCurrentBehavior(index)
            }
        }
        SettingsEmptyState {
            objectName: "noCurrentApplication"
            width: parent.width
            visible: !page.rules.hasCurrentApplication
            symbol: "macwindow"
            text: qsTr("No frontmost app found")
        }
    }
    SettingsCard {
        width: parent.width
        symbol: "plus"
        title: qsTr("Add App Rule")
        text: qsTr("Choose an app bundle and save an override.")

        BehaviorHint {
            width: parent.width

            IslandSegmentedPicker {
                objectName: "newBehavior"
                name: qsTr("Add App Rule")
                labels: page.rules.behaviorLabels
                selection: page.rules.newBehavior
                maximumWidth: Theme.settings.segmentsWidth
                onChosen: index => page.rules.setNewBehavior(index)
            }
        }
        IslandButton {
            id: choose

            objectName: "chooseApplication"
            look: Theme.buttons.primary
            text: qsTr("Choose Application")
            symbol: "plus"
            onPressed: page.choiceWanted(choose)
        }
    }
    SettingsCard {
        width: parent.width
        symbol: "tray"
        title: qsTr("Saved App Rules")
        text: qsTr("Apps with behavior different from the default.")

        SettingsEmptyState {
            objectName: "noRules"
            width: parent.width
            visible: page.rules.rules.count === 0
            symbol: "tray"
            text: qsTr("No saved app rules")
        }
        Column {
            width: parent.width
            visible: page.rules.rules.count > 0
            spacing: Theme.settings.rowSpacing

            AppRuleColumns {
                width: list.rowWidth
            }
            SettingsList {
                id: list

                objectName: "rules"
                width: parent.width
                name: qsTr("Saved App Rules")
                model: page.rules.rules
                settings: page.settings

                delegate: AppRuleRow {
                    readonly property SettingsList list: ListView.view as SettingsList

                    width: list ? list.rowWidth : 0
                    rules: list ? list.settings.apps : null
                    onReached: list.show(index)
                }
            }
        }
    }
}
