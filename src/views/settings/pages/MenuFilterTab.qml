import QtQuick
import Tovrel.Views

// The page "Menu Filter".
SettingsPage {
    id: tab

    required property SettingsViewAdapter settings

    readonly property MenuFilterSettings filter: tab.settings.menuFilter

    SettingsCard {
        width: parent.width
        symbol: "eye.slash"
        title: qsTr("Hide Menu Item")
        text: qsTr("Choose a real menu command from the front app.")

        SettingsEmptyState {
            objectName: "noCandidates"
            width: parent.width
            visible: tab.filter.candidates.count === 0
            symbol: "macwindow"
            text: qsTr("No menu commands detected. Open the app you want to tune, then refresh.")
        }
        SettingsRowBox {
            width: parent.width
            visible: tab.filter.candidates.count > 0
            symbol: "macwindow"
            label: qsTr("Menu Item")

            IslandPicker {
                objectName: "candidate"
                width: 250
                name: qsTr("Menu Item")
                placeholder: qsTr("Menu Item")
                choices: tab.filter.candidates
                selectedID: tab.filter.selectedID
                text: tab.filter.selectedTitle
                isSearchable: true
                onChosen: id => tab.filter.select(id)
            }
        }
        SettingsRowBox {
            width: parent.width
            visible: tab.filter.candidates.count > 0
            symbol: "eye.slash"
            label: qsTr("Hide")

            IslandPicker {
                objectName: "mode"
                width: 250
                name: qsTr("Hide")
                choices: tab.filter.modes
                selectedID: tab.filter.modeID
                text: tab.filter.modeLabel
                onChosen: id => tab.filter.setMode(id)
            }
        }
        IslandButton {
            objectName: "hideSelected"
            visible: tab.filter.candidates.count > 0
            role: "primary"
            text: qsTr("Hide Selected Item")
            symbol: "plus"
            onPressed: tab.filter.hideSelected()
        }
    }
    SettingsCard {
        width: parent.width
        symbol: "line.3.horizontal.decrease.circle"
        title: qsTr("Hidden Menu Items")
        text: qsTr("These commands stay available in the app menu, just not in Tovrel.")

        SettingsEmptyState {
            objectName: "noRules"
            width: parent.width
            visible: tab.filter.rules.count === 0
            symbol: "line.3.horizontal.decrease.circle"
            text: qsTr("No hidden menu items")
        }
        SettingsList {
            objectName: "rules"
            width: parent.width
            visible: tab.filter.rules.count > 0
            name: qsTr("Hidden Menu Items")
            model: tab.filter.rules
            settings: tab.settings

            delegate: SettingsListRow {
                id: row

                readonly property SettingsList list: ListView.view as SettingsList

                width: list ? list.rowWidth : 0

                IslandIconButton {
                    objectName: "remove"
                    role: "danger"
                    symbol: "trash"
                    text: qsTr("Remove %1").arg(row.title)
                    onPressed: row.list.settings.menuFilter.removeRule(row.rowID)
                    onActiveFocusChanged: {
                        if (activeFocus)
                            row.list.show(row.index);
                    }
                }
            }
        }
    }
}
