import QtQuick
import Tovrel.Views

// The page "Commands".
SettingsPage {
    id: page

    required property SettingsViewAdapter settings

    readonly property CommandsSettings commands: page.settings.commands

    SettingsCard {
        id: form

        objectName: "form"
        width: parent.width
        symbol: page.commands.isEditing ? "pencil" : "plus"
        title: page.commands.isEditing ? qsTr("Edit Command") : qsTr("Add Command")
        text: qsTr("Create local commands that appear beside app menu commands.")

        IslandTextField {
            id: titleField

            objectName: "title"
            width: Math.min(430, parent.width)
            text: page.commands.title
            placeholder: qsTr("Title")
            onEdited: text => page.commands.title = text
        }
        IslandSegmentedPicker {
            objectName: "kind"
            name: qsTr("Kind")
            labels: page.commands.kindLabels
            selection: page.commands.kind
            maximumWidth: parent.width
            onChosen: index => page.commands.kind = index
        }
        IslandTextField {
            objectName: "payload"
            width: parent.width
            text: page.commands.payload
            placeholder: page.commands.payloadPlaceholder
            onEdited: text => page.commands.payload = text
        }
        IslandTextField {
            objectName: "aliases"
            width: parent.width
            text: page.commands.aliases
            placeholder: qsTr("Aliases separated by commas")
            onEdited: text => page.commands.aliases = text
        }
        IslandToggle {
            objectName: "usesCurrentApp"
            width: parent.width
            title: page.commands.usesCurrentAppLabel
            isOn: page.commands.usesCurrentApp
            onToggled: isOn => page.commands.usesCurrentApp = isOn
        }
        IslandToggle {
            objectName: "isEnabled"
            width: parent.width
            title: qsTr("Enabled")
            isOn: page.commands.isEnabled
            onToggled: isOn => page.commands.isEnabled = isOn
        }
        Row {
            spacing: Theme.settings.gap

            IslandButton {
                id: save

                objectName: "save"
                look: Theme.buttons.primary
                text: page.commands.isEditing ? qsTr("Save Changes") : qsTr("Add Command")
                symbol: page.commands.isEditing ? "checkmark" : "plus"
                onPressed: page.commands.save()
            }
            IslandButton {
                objectName: "cancel"
                visible: page.commands.isEditing
                text: qsTr("Cancel")
                onPressed: {
                    save.forceActiveFocus(Qt.OtherFocusReason);
                    page.commands.cancel();
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
            visible: page.commands.commands.count === 0
            symbol: "terminal"
            text: qsTr("No custom commands")
        }
        SettingsList {
            objectName: "commands"
            width: parent.width
            visible: page.commands.commands.count > 0
            name: qsTr("Custom Commands")
            model: page.commands.commands
            settings: page.settings
            // The user goes on in the form, which has been filled.
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
                    look: Theme.buttons.dangerIcon
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
