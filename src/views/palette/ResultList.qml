import QtQuick
import Tovrel.Views

// The results, scrolled only when it is told to.
ListView {
    id: list

    required property bool showCheckedStatus

    signal chosen(int row)

    // How much of its upper and lower end the list shows faded while it goes on there.
    readonly property int fadeAbove: 12
    readonly property int fadeBelow: 20

    // Scrolls no further than it must for the row to be seen clearly.
    function highlightRow(row: int) {
        list.currentIndex = row;
        if (row < list.count) {
            list.positionViewAtIndex(row, ListView.Contain);
            if (list.currentItem)
                list.uncover(list.currentItem.y, list.currentItem.y + list.currentItem.height);
        }
    }

    function uncover(top: real, bottom: real) {
        const first = list.originY;
        const last = Math.max(first, first + list.contentHeight + list.bottomMargin - list.height);
        if (top - list.fadeAbove < list.contentY)
            list.contentY = Math.max(first, top - list.fadeAbove);
        else if (bottom + list.fadeBelow > list.contentY + list.height)
            list.contentY = Math.min(last, bottom + list.fadeBelow - list.height);
    }

    spacing: Theme.palette.rowSpacing
    clip: true
    reuseItems: true
    // Rows beyond the edge would be made by and by, and Qt complains when there are fewer results before that.
    cacheBuffer: 0
    boundsBehavior: Flickable.StopAtBounds
    keyNavigationEnabled: false
    // An invisible highlight would otherwise be animated, and the view repainted for seconds.
    highlightFollowsCurrentItem: false
    highlightMoveDuration: 0
    highlightResizeDuration: 0

    Accessible.role: Accessible.List
    Accessible.name: qsTr("Results")

    // Below the rows, scrolled with them.
    RoundedBox {
        objectName: "highlight"

        readonly property Item row: list.currentItem

        parent: list.contentItem
        z: -1
        visible: row !== null
        y: row ? row.y : 0
        width: list.width
        height: row ? row.height : 0
        from: Theme.colours.accent
        to: Theme.colours.accentLight
        isDiagonal: true
        radius: Theme.radii.paletteRow
    }
}
