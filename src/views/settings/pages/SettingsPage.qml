import QtQuick
import Tovrel.Views

// A page of cards, which scrolls when they need more room than there is.
FocusScope {
    id: page

    default property alias cards: column.data

    // Scrolls to the item that the keyboard has reached, including its focus ring.
    function reveal(item: Item) {
        const top = item.mapToItem(column, 0, 0).y;
        const bottom = top + item.height;
        const last = Math.max(0, flickable.contentHeight - flickable.height);
        if (top - 16 < flickable.contentY)
            flickable.contentY = Math.max(0, top - 16);
        else if (bottom + 16 > flickable.contentY + flickable.height)
            flickable.contentY = Math.min(last, bottom + 16 - flickable.height);
    }

    function contains(item: Item): bool {
        for (let ancestor = item; ancestor; ancestor = ancestor.parent) {
            if (ancestor === column)
                return true;
        }
        return false;
    }

    Connections {
        target: page.Window.window

        function onActiveFocusItemChanged() {
            const item = page.Window.activeFocusItem;
            if (item && page.contains(item))
                page.reveal(item);
        }
    }
    Flickable {
        id: flickable

        objectName: "page"
        anchors.fill: parent
        contentHeight: column.height
        boundsBehavior: Flickable.StopAtBounds
        clip: true

        Column {
            id: column

            x: Theme.settings.outer
            width: page.width - 2 * Theme.settings.outer
            bottomPadding: Theme.settings.outer
            spacing: Theme.settings.inner
        }
    }
    // Cards that are scrolled away fade out at the edge.
    Rectangle {
        x: column.x
        width: column.width
        height: 14
        visible: flickable.contentY > 0
        gradient: Gradient {
            GradientStop { position: 0; color: Theme.colours.settingsFadeAbove }
            GradientStop { position: 1; color: Qt.alpha(Theme.colours.settingsFadeAbove, 0) }
        }
    }
    SlimScrollBar {
        anchors.right: parent.right
        anchors.rightMargin: 5
        anchors.top: parent.top
        anchors.bottom: parent.bottom
        anchors.bottomMargin: 8
        flickable: flickable
    }
}
