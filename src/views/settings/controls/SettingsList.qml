import QtQuick
import Tovrel.Views

// The rows of a card. A long list is scrolled in itself, so that what follows it stays within reach.
ListView {
    id: list

    required property string name
    // For the rows, which cannot see what is around the list.
    required property SettingsViewAdapter settings
    // Whether the rows have nothing the keyboard reaches, so that it goes through the rows themselves.
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

    // A row did what goes on elsewhere.
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

    // What the keyboard reaches comes in sight.
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
