import QtQuick
import Tovrel.Views

// The page "General".
SettingsPage {
    id: page

    required property SettingsViewAdapter settings

    readonly property GeneralSettings general: page.settings.general

    SettingsCard {
        width: parent.width
        symbol: "lock.shield"
        title: qsTr("Access")
        text: qsTr("Allow Tovrel to read app menus locally.")

        SettingsRowBox {
            width: parent.width
            label: qsTr("Accessibility")

            StatusPill {
                objectName: "access"
                symbol: page.general.isAccessibilityTrusted ? "checkmark.seal.fill" : "lock.shield"
                text: page.general.isAccessibilityTrusted ? qsTr("Ready") : qsTr("Needs Permission")
                isGood: page.general.isAccessibilityTrusted
            }
        }
        Item {
            width: parent.width
            height: Math.max(advice.height, open.height)
            visible: !page.general.isAccessibilityTrusted

            Text {
                id: advice

                anchors.left: parent.left
                anchors.leftMargin: 2
                anchors.right: open.left
                anchors.rightMargin: Theme.settings.inner
                anchors.verticalCenter: parent.verticalCenter
                text: qsTr("Turn on Tovrel in System Settings > Privacy & Security > Accessibility, then return and refresh.")
                color: Theme.colours.quiet
                font: Theme.fonts.smallBody
                lineHeight: 1.1
                wrapMode: Text.Wrap
                textFormat: Text.PlainText
                Accessible.role: Accessible.StaticText
                Accessible.name: text
            }
            IslandIconButton {
                id: open

                objectName: "openPrivacySettings"
                anchors.right: parent.right
                anchors.rightMargin: Theme.settings.rowEnd
                anchors.verticalCenter: parent.verticalCenter
                width: Theme.settings.controlHeight
                height: Theme.settings.controlHeight
                text: qsTr("Accessibility")
                symbol: "arrow.up.forward.app"
                onPressed: page.general.openPrivacySettings()
            }
        }
    }
    SettingsCard {
        width: parent.width
        symbol: "command"
        title: qsTr("Hotkey")
        text: qsTr("Choose the global shortcut that opens Tovrel.")

        SettingsRowBox {
            width: parent.width
            symbol: "keyboard"
            label: qsTr("Command Palette")

            RecorderField {
                recorder: page.general.recorder
                name: qsTr("Command Palette")
            }
        }
        ShortcutProblem {
            width: parent.width
            recorder: page.general.recorder
        }
    }
    SettingsCard {
        width: parent.width
        symbol: "eye"
        title: qsTr("Display")
        text: qsTr("Keep menu state visible when the front app exposes it.")

        IslandToggle {
            objectName: "showCheckedStatus"
            width: parent.width
            title: qsTr("Show checked status of menu items")
            isOn: page.general.showCheckedStatus
            onToggled: isOn => page.general.showCheckedStatus = isOn
        }
    }
    SettingsCard {
        width: parent.width
        symbol: "bell"
        title: qsTr("Notifications")
        text: qsTr("Hear of what goes wrong after the palette has closed.")

        IslandToggle {
            objectName: "notifiesOfCommandFailures"
            width: parent.width
            title: qsTr("Notify when a custom command fails")
            isOn: page.general.notifiesOfCommandFailures
            onToggled: isOn => page.general.notifiesOfCommandFailures = isOn
        }
    }
}
