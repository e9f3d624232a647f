import QtQuick
import Tovrel.Views

// The content of the settings' window: the sidebar, and the page that is selected there.
FocusScope {
    id: view

    required property SettingsViewAdapter settings

    function showPage() {
        page.setSource(view.settings.pageFile, {"settings": view.settings});
    }

    function chooseApplication(button: Item) {
        view.settings.apps.loadApplications();
        dialog.setSource("ChooseApplicationDialog.qml", {"rules": view.settings.apps, "opener": button});
    }

    implicitWidth: 920
    implicitHeight: 620
    focus: true

    Component.onCompleted: view.showPage()

    Connections {
        target: view.settings

        function onSelectedPageChanged() {
            view.showPage();
        }
    }
    SettingsBackground {
        anchors.fill: parent
    }
    // What is below a dialog can be neither reached nor pressed.
    Item {
        anchors.fill: parent
        enabled: dialog.status === Loader.Null

        SettingsSidebar {
            x: 12
            y: 12
            width: 208
            height: parent.height - 24
            settings: view.settings
        }
        Item {
            id: header

            x: 220 + SettingsTheme.outer
            y: 20
            width: view.width - header.x - SettingsTheme.outer
            height: 58

            Column {
                anchors.left: parent.left
                anchors.right: badge.left
                anchors.rightMargin: SettingsTheme.gap
                anchors.verticalCenter: parent.verticalCenter

                Text {
                    objectName: "header"
                    width: parent.width
                    text: view.settings.pageTitle
                    color: SettingsTheme.ink
                    font.pixelSize: 24
                    font.weight: Font.ExtraBold
                    elide: Text.ElideRight
                    Accessible.role: Accessible.Heading
                    Accessible.name: text
                }
                Text {
                    width: parent.width
                    text: view.settings.pageSubtitle
                    color: SettingsTheme.quiet
                    font.pixelSize: 14
                    font.weight: Font.Medium
                    elide: Text.ElideRight
                }
            }
            RoundedBox {
                id: badge

                anchors.right: parent.right
                anchors.verticalCenter: parent.verticalCenter
                width: Math.ceil(badgeLabel.implicitWidth) + 26
                height: 28
                radius: 14
                from: SettingsTheme.accentTint

                Text {
                    id: badgeLabel

                    anchors.centerIn: parent
                    text: view.settings.pageBadge
                    color: SettingsTheme.accentInk
                    font.pixelSize: 13
                    font.weight: Font.Bold
                }
            }
        }
        SettingsNotice {
            id: notice

            objectName: "unstoredChange"
            x: header.x
            width: header.width
            anchors.top: header.bottom
            anchors.topMargin: 10
            visible: view.settings.unstoredChange !== ""
            title: qsTr("The last change was not stored")
            text: view.settings.unstoredChange
        }
        Loader {
            id: page

            x: 220
            anchors.top: notice.visible ? notice.bottom : header.bottom
            anchors.topMargin: 10
            anchors.bottom: parent.bottom
            width: view.width - page.x
        }
    }
    Connections {
        target: page.item as AppsPage

        function onChoiceWanted(button: Item) {
            view.chooseApplication(button);
        }
    }
    Loader {
        id: dialog

        objectName: "dialog"
        anchors.fill: parent
    }
    Connections {
        target: dialog.item as ChooseApplicationDialog

        function onClosed(opener: Item) {
            dialog.source = "";
            opener.forceActiveFocus(Qt.OtherFocusReason);
        }
    }
}
