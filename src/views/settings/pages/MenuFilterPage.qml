import QtQuick
import Tovrel.Views

// The page "Menu Filter".
SettingsPage {
    id: page

    required property SettingsViewAdapter settings

    readonly property MenuFilterSettings filter: page.settings.menuFilter

    SettingsCard {
        width: parent.width
        symbol: "eye.slash"
        title: qsTr("Hide Menu Item")
        text: qsTr("Choose a real menu command from the front app.")

        SettingsEmptyState {
            objectName: "noCandidates"
            width: parent.width
            visible: page.filter.candidates.count === 0
            symbol: "macwindow"
            text: qsTr("No menu commands detected. Open the app you want to tune, then refresh.")
        }
        SettingsRowBox {
            width: parent.width
            visible: page.filter.candidates.count > 0
            symbol: "macwindow"
            label: qsTr("Menu Item")

            IslandPicker {
                objectName: "candidate"
                width: Theme.settings.pickerWidth
                name: qsTr("Menu Item")
                placeholder: qsTr("Menu Item")
                choices: page.filter.candidates
                selectedID: page.filter.selectedID
                text: page.filter.selectedTitle
                isSearchable: true
                onChosen: id => page.filter.select(id)
            }
        }
        SettingsRowBox {
            width: parent.width
            visible: page.filter.candidates.count > 0
            symbol: "eye.slash"
            label: qsTr("Hide")

            IslandPicker {
                objectName: "mode"
                width: Theme.settings.pickerWidth
                name: qsTr("Hide")
                choices: page.filter.modes
                selectedID: page.filter.modeID
                text: page.filter.modeLabel
                onChosen: id => page.filter.setMode(id)
            }
        }
        IslandButton {
            objectName: "hideSelected"
            visible: page.filter.candidates.count > 0
            look: Theme.buttons.primary
            text: qsTr("Hide Selected Item")
            symbol: "plus"
            onPressed: page.filter.hideSelected()
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
            visible: page.filter.rules.count === 0
            symbol: "line.3.horizontal.decrease.circle"
            text: qsTr("No hidden menu items")
        }
        SettingsList {
            objectName: "rules"
            width: parent.width
            visible: page.filter.rules.count > 0
            name: qsTr("Hidden Menu Items")
            model: page.filter.rules
            settings: page.settings

            delegate: SettingsListRow {
                id: row

                readonly property SettingsList list: ListView.view as SettingsList

                width: list ? list.rowWidth : 0

                IslandIconButton {
                    objectName: "remove"
                    look: Theme.buttons.dangerIcon
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
