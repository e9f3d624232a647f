import QtQuick
import Tovrel.Views

// The page "History".
SettingsPage {
    id: tab

    required property SettingsViewAdapter settings

    readonly property HistorySettings history: tab.settings.history
    readonly property bool hasMenuCommands: tab.history.menuCommands.count > 0

    SettingsCard {
        width: parent.width
        symbol: "magnifyingglass"
        title: qsTr("Menu Search")
        text: qsTr("Tune aliases and ranking for the front app.")

        SettingsEmptyState {
            objectName: "noMenuCommands"
            width: parent.width
            visible: !tab.hasMenuCommands
            symbol: "macwindow"
            text: qsTr("No menu commands detected. Open the app you want to tune, then refresh.")
        }
        SettingsRowBox {
            width: parent.width
            visible: tab.hasMenuCommands
            symbol: "macwindow"
            label: qsTr("Menu Command")

            IslandPicker {
                objectName: "menuCommand"
                width: 250
                name: qsTr("Menu Command")
                placeholder: qsTr("Menu Command")
                choices: tab.history.menuCommands
                selectedID: tab.history.selectedID
                text: tab.history.selectedTitle
                isSearchable: true
                onChosen: id => tab.history.select(id)
            }
        }
        IslandTextField {
            objectName: "aliases"
            width: parent.width
            visible: tab.hasMenuCommands
            text: tab.history.aliases
            placeholder: qsTr("Aliases separated by commas")
            onEdited: text => tab.history.aliases = text
        }
        IslandToggle {
            objectName: "favorite"
            width: parent.width
            visible: tab.hasMenuCommands
            title: qsTr("Favorite")
            isOn: tab.history.isFavorite
            onToggled: isOn => tab.history.isFavorite = isOn
        }
        IslandButton {
            objectName: "save"
            visible: tab.hasMenuCommands
            role: "primary"
            text: qsTr("Save Search Rule")
            symbol: "checkmark"
            onPressed: tab.history.save()
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
            visible: tab.history.entries.count === 0
            symbol: "clock"
            text: qsTr("No command usage recorded yet")
        }
        SettingsList {
            objectName: "entries"
            width: parent.width
            visible: tab.history.entries.count > 0
            name: qsTr("Saved Ranking Data")
            model: tab.history.entries
            settings: tab.settings
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
                    controlRadius: 11
                    anchors.margins: 1
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
            role: "danger"
            text: qsTr("Clear History Records")
            symbol: "trash"
            onPressed: tab.history.clear()
        }
    }
}
