import QtQuick
import Tovrel.Views

// The program's icon and name, the pages, and the button that loads everything anew.
RoundedBox {
    id: sidebar

    required property SettingsViewAdapter settings

    radius: 22
    from: "#a6ffffff"
    borderWidth: 1
    borderColour: "#33806b4a"

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
            color: SettingsTheme.ink
            font.pixelSize: 19
            font.weight: Font.ExtraBold
            elide: Text.ElideRight
        }
        Text {
            width: parent.width
            text: qsTr("Settings")
            color: SettingsTheme.quiet
            font.pixelSize: 13
            font.weight: Font.Medium
            elide: Text.ElideRight
        }
    }
    SidebarEntries {
        id: list

        x: 12
        y: 86
        width: parent.width - 24
        spacing: 6
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
        x: 12
        anchors.bottom: parent.bottom
        anchors.bottomMargin: 12
        width: parent.width - 24
        text: qsTr("Refresh")
        symbol: "arrow.clockwise"
        onPressed: sidebar.settings.refresh()
    }
}
