import QtQuick
import Tovrel.Views

// The results. The list scrolls only when it is told to.
ListView {
    id: list

    required property bool showCheckedStatus

    signal chosen(int row)

    // The heights over which the list fades at its upper and lower end while it has more rows there.
    readonly property int fadeAbove: 12
    readonly property int fadeBelow: 20

    // Scrolls only as far as needed to show the row unfaded.
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
    // Qt would make rows beyond the edge later, and complain when there are fewer results by then.
    cacheBuffer: 0
    boundsBehavior: Flickable.StopAtBounds
    keyNavigationEnabled: false
    // Otherwise an invisible highlight would be animated, and the view repainted for seconds.
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
