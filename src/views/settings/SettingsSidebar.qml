import QtQuick
import Tovrel.Views

// The program's icon and name, the pages, and the button that loads everything again.
RoundedBox {
    id: sidebar

    required property SettingsViewAdapter settings

    radius: Theme.radii.sidebar
    from: Theme.colours.sidebar
    borderWidth: 1
    borderColour: Theme.colours.sidebarBorder

    Image {
        id: appIcon

        x: 16
        y: 18
        width: 48
        height: 48
        source: "SettingsAppIcon.svg"
        sourceSize.width: 48
        sourceSize.height: 48
        Accessible.ignored: true
    }
    Column {
        anchors.left: appIcon.right
        anchors.leftMargin: 10
        anchors.right: parent.right
        anchors.rightMargin: 8
        anchors.verticalCenter: appIcon.verticalCenter
        spacing: 1

        Text {
            width: parent.width
            text: "Tovrel"
            color: Theme.colours.ink
            font: Theme.fonts.programName
            elide: Text.ElideRight
        }
        Text {
            width: parent.width
            text: qsTr("Settings")
            color: Theme.colours.quiet
            font: Theme.fonts.smallBody
            elide: Text.ElideRight
        }
    }
    SidebarEntries {
        id: list

        x: Theme.settings.sidebarInset
        y: 86
        width: parent.width - 2 * Theme.settings.sidebarInset
        spacing: Theme.settings.rowSpacing
        settings: sidebar.settings
        onMoved: index => {
            const button = entries.itemAt(index);
            if (button) {
                sidebar.settings.selectPage(index);
                button.forceActiveFocus(Qt.OtherFocusReason);
            }
        }

        Accessible.role: Accessible.PageTabList
        Accessible.name: qsTr("Settings")

        Repeater {
            id: entries

            model: sidebar.settings.pages

            delegate: SettingsSidebarButton {
                required property int index
                readonly property SidebarEntries column: parent as SidebarEntries

                width: column ? column.width : 0
                isSelected: column !== null && index === column.settings.selectedPage
                onPressed: column.settings.selectPage(index)
                Keys.onUpPressed: column.moved(index - 1)
                Keys.onDownPressed: column.moved(index + 1)
            }
        }
    }
    IslandButton {
        objectName: "refresh"
        x: Theme.settings.sidebarInset
        anchors.bottom: parent.bottom
        anchors.bottomMargin: Theme.settings.sidebarInset
        width: parent.width - 2 * Theme.settings.sidebarInset
        text: qsTr("Refresh")
        symbol: "arrow.clockwise"
        onPressed: sidebar.settings.refresh()
    }
}
