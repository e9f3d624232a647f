import QtQuick
import Tovrel.Views

// The rows of a card. A long list scrolls by itself, so that the content after it stays within reach.
ListView {
    id: list

    required property string name
    // For the rows, which cannot see the list's surroundings.
    required property SettingsViewAdapter settings
    // Whether the keyboard moves through the rows themselves, because they have no controls that it could reach.
    property bool isReadByKeyboard: false
    property int mostHeight: 6 * (Theme.settings.rowHeight + list.spacing) - list.spacing

    readonly property bool isScrolled: list.contentHeight > list.mostHeight
    readonly property real rowWidth: list.width - (list.isScrolled ? 14 : 0)

    height: Math.min(list.contentHeight, list.mostHeight)
    spacing: Theme.settings.rowSpacing
    clip: list.isScrolled
    interactive: list.isScrolled
    boundsBehavior: Flickable.StopAtBounds
    keyNavigationEnabled: false
    highlightFollowsCurrentItem: false
    highlightMoveDuration: 0
    highlightResizeDuration: 0
    activeFocusOnTab: list.isReadByKeyboard
    Keys.onUpPressed: event => event.accepted = list.move(-1)
    Keys.onDownPressed: event => event.accepted = list.move(1)
    onActiveFocusChanged: {
        if (list.activeFocus && list.isReadByKeyboard)
            list.show(list.currentIndex);
    }

    // Emitted when a row's action continues elsewhere on the page.
    signal actedOn()

    Accessible.role: Accessible.List
    Accessible.name: list.name

    function move(delta: int): bool {
        if (list.isReadByKeyboard) {
            list.currentIndex = Math.max(0, Math.min(list.count - 1, list.currentIndex + delta));
            list.show(list.currentIndex);
        }
        return list.isReadByKeyboard;
    }

    // Scrolls to the row that the keyboard has reached.
    function show(index: int) {
        list.positionViewAtIndex(index, ListView.Contain);
    }

    SlimScrollBar {
        parent: list
        anchors.right: parent.right
        anchors.top: parent.top
        anchors.bottom: parent.bottom
        flickable: list
    }
}
