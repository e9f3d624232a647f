import QtQuick
import Tovrel.Views

// The page "History".
SettingsPage {
    id: page

    required property SettingsViewAdapter settings

    readonly property HistorySettings history: page.settings.history
    readonly property bool hasMenuCommands: page.history.menuCommands.count > 0

    SettingsCard {
        width: parent.width
        symbol: "magnifyingglass"
        title: qsTr("Menu Search")
        text: qsTr("Tune aliases and ranking for the front app.")

        SettingsEmptyState {
            objectName: "noMenuCommands"
            width: parent.width
            visible: !page.hasMenuCommands
            symbol: "macwindow"
            text: qsTr("No menu commands detected. Open the app you want to tune, then refresh.")
        }
        SettingsRowBox {
            width: parent.width
            visible: page.hasMenuCommands
            symbol: "macwindow"
            label: qsTr("Menu Command")

            IslandPicker {
                objectName: "menuCommand"
                width: Theme.settings.pickerWidth
                name: qsTr("Menu Command")
                placeholder: qsTr("Menu Command")
                choices: page.history.menuCommands
                selectedID: page.history.selectedID
                text: page.history.selectedTitle
                isSearchable: true
                onChosen: id => page.history.select(id)
            }
        }
        IslandTextField {
            objectName: "aliases"
            width: parent.width
            visible: page.hasMenuCommands
            text: page.history.aliases
            placeholder: qsTr("Aliases separated by commas")
            onEdited: text => page.history.aliases = text
        }
        IslandToggle {
            objectName: "favorite"
            width: parent.width
            visible: page.hasMenuCommands
            title: qsTr("Favorite")
            isOn: page.history.isFavorite
            onToggled: isOn => page.history.isFavorite = isOn
        }
        IslandButton {
            objectName: "save"
            visible: page.hasMenuCommands
            look: Theme.buttons.primary
            text: qsTr("Save Search Rule")
            symbol: "checkmark"
            onPressed: page.history.save()
        }
    }
    SettingsCard {
        width: parent.width
        symbol: "clock.arrow.circlepath"
        title: qsTr("Saved Ranking Data")
        text: qsTr("Commands Tovrel has learned from usage.")

        SettingsEmptyState {
            objectName: "noEntries"
            width: parent.width
            visible: page.history.entries.count === 0
            symbol: "clock"
            text: qsTr("No command usage recorded yet")
        }
        SettingsList {
            objectName: "entries"
            width: parent.width
            visible: page.history.entries.count > 0
            name: qsTr("Saved Ranking Data")
            model: page.history.entries
            settings: page.settings
            isReadByKeyboard: true

            delegate: SettingsListRow {
                id: row

                required property bool isMarked
                readonly property SettingsList list: ListView.view as SettingsList

                width: list ? list.rowWidth : 0
                Accessible.description: row.isMarked ? row.detail + " · " + qsTr("Favorite") : row.detail

                StatusPill {
                    visible: row.isMarked
                    symbol: "star.fill"
                    text: qsTr("Favorite")
                    isGood: false
                    Accessible.ignored: true
                }
                FocusRing {
                    parent: row
                    control: row
                    anchors.margins: 1
                    controlRadius: row.radius - distance
                }
            }
        }
    }
    SettingsCard {
        width: parent.width
        symbol: "trash"
        title: qsTr("Reset")
        text: qsTr("Remove local command usage data and learned ranking.")

        IslandButton {
            objectName: "clear"
            look: Theme.buttons.danger
            text: qsTr("Clear History Records")
            symbol: "trash"
            onPressed: page.history.clear()
        }
    }
}
