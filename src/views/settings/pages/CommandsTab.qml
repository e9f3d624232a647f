import QtQuick
import Tovrel.Views

// The page "Commands".
SettingsPage {
    id: tab

    required property SettingsViewAdapter settings

    readonly property CustomCommandsSettings commands: tab.settings.commands

    SettingsCard {
        id: form

        objectName: "form"
        width: parent.width
        symbol: tab.commands.isEditing ? "pencil" : "plus"
        title: tab.commands.isEditing ? qsTr("Edit Command") : qsTr("Add Command")
        text: qsTr("Create local commands that appear beside app menu commands.")

        IslandTextField {
            id: titleField

            objectName: "title"
            width: Math.min(430, parent.width)
            text: tab.commands.title
            placeholder: qsTr("Title")
            onEdited: text => tab.commands.title = text
        }
        IslandSegmentedPicker {
            objectName: "kind"
            name: qsTr("Kind")
            labels: tab.commands.kindLabels
            selection: tab.commands.kind
            maximumWidth: parent.width
            onChosen: index => tab.commands.kind = index
        }
        IslandTextField {
            objectName: "payload"
            width: parent.width
            text: tab.commands.payload
            placeholder: tab.commands.payloadPlaceholder
            onEdited: text => tab.commands.payload = text
        }
        IslandTextField {
            objectName: "aliases"
            width: parent.width
            text: tab.commands.aliases
            placeholder: qsTr("Aliases separated by commas")
            onEdited: text => tab.commands.aliases = text
        }
        IslandToggle {
            objectName: "usesCurrentApp"
            width: parent.width
            title: tab.commands.usesCurrentAppLabel
            isOn: tab.commands.usesCurrentApp
            onToggled: isOn => tab.commands.usesCurrentApp = isOn
        }
        IslandToggle {
            objectName: "isEnabled"
            width: parent.width
            title: qsTr("Enabled")
            isOn: tab.commands.isEnabled
            onToggled: isOn => tab.commands.isEnabled = isOn
        }
        Row {
            spacing: SettingsTheme.gap

            IslandButton {
                id: save

                objectName: "save"
                role: "primary"
                text: tab.commands.isEditing ? qsTr("Save Changes") : qsTr("Add Command")
                symbol: tab.commands.isEditing ? "checkmark" : "plus"
                onPressed: tab.commands.save()
            }
            IslandButton {
                objectName: "cancel"
                visible: tab.commands.isEditing
                text: qsTr("Cancel")
                onPressed: {
                    save.forceActiveFocus(Qt.OtherFocusReason);
                    tab.commands.cancel();
                }
            }
        }
    }
    SettingsCard {
        width: parent.width
        symbol: "terminal"
        title: qsTr("Custom Commands")
        text: qsTr("Local actions you have added to Tovrel.")

        SettingsEmptyState {
            objectName: "noCommands"
            width: parent.width
            visible: tab.commands.commands.count === 0
            symbol: "terminal"
            text: qsTr("No custom commands")
        }
        SettingsList {
            objectName: "commands"
            width: parent.width
            visible: tab.commands.commands.count > 0
            name: qsTr("Custom Commands")
            model: tab.commands.commands
            settings: tab.settings
            // The form is filled where the user is to go on.
            onActedOn: titleField.textInput.forceActiveFocus(Qt.OtherFocusReason)

            delegate: SettingsListRow {
                id: row

                readonly property SettingsList list: ListView.view as SettingsList

                width: list ? list.rowWidth : 0

                IslandIconButton {
                    objectName: "edit"
                    symbol: "pencil"
                    text: qsTr("Edit %1").arg(row.title)
                    onPressed: {
                        row.list.settings.commands.edit(row.rowID);
                        row.list.actedOn();
                    }
                    onActiveFocusChanged: {
                        if (activeFocus)
                            row.list.show(row.index);
                    }
                }
                IslandIconButton {
                    objectName: "remove"
                    role: "danger"
                    symbol: "trash"
                    text: qsTr("Delete %1").arg(row.title)
                    onPressed: row.list.settings.commands.remove(row.rowID)
                    onActiveFocusChanged: {
                        if (activeFocus)
                            row.list.show(row.index);
                    }
                }
            }
        }
    }
}
