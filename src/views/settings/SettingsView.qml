import QtQuick
import Tovrel.Views

// The content of the settings' window: the sidebar, and the page that is selected there.
FocusScope {
    id: view

    required property SettingsViewAdapter settings

    // Where the sidebar ends and the page begins.
    readonly property int pageStart: Theme.settings.sidebarInset + Theme.settings.sidebarWidth

    function showPage() {
        page.setSource(view.settings.pageFile, {"settings": view.settings});
    }

    function chooseApplication(button: Item) {
        view.settings.apps.loadApplications();
        dialog.setSource("ChooseApplicationDialog.qml", {"rules": view.settings.apps, "opener": button});
    }

    implicitWidth: Theme.settings.width
    implicitHeight: Theme.settings.height
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
    // Controls below an open dialog can be neither reached nor pressed.
    Item {
        anchors.fill: parent
        enabled: dialog.status === Loader.Null

        SettingsSidebar {
            x: Theme.settings.sidebarInset
            y: Theme.settings.sidebarInset
            width: Theme.settings.sidebarWidth
            height: parent.height - 2 * Theme.settings.sidebarInset
            settings: view.settings
        }
        Item {
            id: header

            x: view.pageStart + Theme.settings.outer
            y: 20
            width: view.width - header.x - Theme.settings.outer
            height: Theme.settings.headerHeight

            Column {
                anchors.left: parent.left
                anchors.right: badge.left
                anchors.rightMargin: Theme.settings.gap
                anchors.verticalCenter: parent.verticalCenter

                Text {
                    objectName: "header"
                    width: parent.width
                    text: view.settings.pageTitle
                    color: Theme.colours.ink
                    font: Theme.fonts.pageTitle
                    elide: Text.ElideRight
                    Accessible.role: Accessible.Heading
                    Accessible.name: text
                }
                Text {
                    width: parent.width
                    text: view.settings.pageSubtitle
                    color: Theme.colours.quiet
                    font: Theme.fonts.body
                    elide: Text.ElideRight
                }
            }
            RoundedBox {
                id: badge

                anchors.right: parent.right
                anchors.verticalCenter: parent.verticalCenter
                width: Math.ceil(badgeLabel.implicitWidth) + 26
                height: Theme.settings.badgeHeight
                radius: badge.height / 2
                from: Theme.colours.accentTint

                Text {
                    id: badgeLabel

                    anchors.centerIn: parent
                    text: view.settings.pageBadge
                    color: Theme.colours.accentInk
                    font: Theme.fonts.tag
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

            x: view.pageStart
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
