import QtQuick
import Tovrel.Views

// The choices of a picker, over everything else in the window.
FocusScope {
    id: popup

    required property IslandPicker picker

    readonly property int rowHeight: Theme.settings.choiceHeight
    readonly property int mostRows: 8

    function place() {
        const above = popup.picker.mapToItem(popup, 0, 0).y;
        const below = above + popup.picker.height + 6;
        const left = popup.picker.mapToItem(popup, 0, 0).x;
        box.x = Math.max(12, Math.min(left, popup.width - box.width - 12));
        box.y = below + box.height <= popup.height - 12 ? below : Math.max(12, above - 6 - box.height);
    }

    function choose(row: int) {
        const id = rows.idAt(row);
        const picker = popup.picker;
        if (row >= 0 && row < list.count) {
            picker.close(true);
            picker.chosen(id);
        }
    }

    parent: popup.picker.Window.contentItem
    anchors.fill: parent
    z: 100

    Component.onCompleted: {
        list.currentIndex = rows.rowOf(popup.picker.selectedID);
        list.positionViewAtIndex(list.currentIndex, ListView.Center);
        popup.place();
        if (popup.picker.isSearchable)
            filter.textInput.forceActiveFocus(Qt.PopupFocusReason);
        else
            list.forceActiveFocus(Qt.PopupFocusReason);
    }

    Keys.onEscapePressed: popup.picker.close(true)
    Keys.onReturnPressed: popup.choose(list.currentIndex)
    Keys.onEnterPressed: popup.choose(list.currentIndex)
    Keys.onTabPressed: popup.picker.close(true)
    Keys.onBacktabPressed: popup.picker.close(true)
    Keys.onUpPressed: list.currentIndex = Math.max(0, list.currentIndex - 1)
    Keys.onDownPressed: list.currentIndex = Math.min(list.count - 1, list.currentIndex + 1)
    Keys.onPressed: event => {
        if (event.key === Qt.Key_PageDown)
            list.currentIndex = Math.min(list.count - 1, list.currentIndex + popup.mostRows - 1);
        else if (event.key === Qt.Key_PageUp)
            list.currentIndex = Math.max(0, list.currentIndex - popup.mostRows + 1);
        else if (event.key === Qt.Key_Space && !popup.picker.isSearchable)
            popup.choose(list.currentIndex);
        else
            return;
        event.accepted = true;
    }

    // The focus may leave the list without a choice.
    onActiveFocusChanged: {
        if (!popup.activeFocus)
            popup.picker.close(false);
    }

    MouseArea {
        anchors.fill: parent
        acceptedButtons: Qt.AllButtons
        onPressed: popup.picker.close(true)
        onWheel: wheel => wheel.accepted = true
    }
    FilteredRowsModel {
        id: rows

        source: popup.picker.choices
        filter: filter.text
    }
    SpokenRow {
        id: spoken

        rows: list
        input: filter.textInput
    }
    SoftShadow {
        anchors.fill: box
        radius: box.radius
    }
    RoundedBox {
        id: box

        width: popup.picker.isSearchable ? Math.max(popup.picker.width, 360)
                                         : Math.max(popup.picker.width, 130, list.widest + 66)
        height: list.y + list.height + 6
        radius: Theme.radii.popup
        from: Theme.colours.card
        borderWidth: 1
        borderColour: Theme.colours.line

        MouseArea {
            anchors.fill: parent
            acceptedButtons: Qt.AllButtons
        }
        IslandTextField {
            id: filter

            objectName: "filter"
            x: 8
            y: 8
            width: box.width - 16
            height: 36
            visible: popup.picker.isSearchable
            symbol: "magnifyingglass"
            text: ""
            placeholder: qsTr("Search")
            onEdited: text => {
                filter.text = text;
                list.currentIndex = 0;
                list.positionViewAtBeginning();
                spoken.typed();
            }
        }
        Text {
            anchors.centerIn: list
            visible: list.count === 0
            text: qsTr("No matches")
            color: Theme.colours.quiet
            font: Theme.fonts.smallBody
        }
        PickerChoices {
            id: list

            objectName: "choices"

            picker: popup.picker
            rowHeight: popup.rowHeight
            onChosen: row => popup.choose(row)
            x: 6
            y: filter.visible ? filter.y + filter.height + 6 : 6
            width: box.width - 12
            // The height that all choices need, even while fewer are shown.
            height: Math.min(popup.mostRows, Math.max(1, popup.picker.choices.count)) * popup.rowHeight
            clip: true
            model: rows
            boundsBehavior: Flickable.StopAtBounds
            // As in the palette, Qt must not make rows later.
            cacheBuffer: 0
            keyNavigationEnabled: false
            highlightFollowsCurrentItem: false
            highlightMoveDuration: 0
            highlightResizeDuration: 0
            onCurrentIndexChanged: {
                if (list.currentIndex >= 0)
                    list.positionViewAtIndex(list.currentIndex, ListView.Contain);
                spoken.rowMoved();
            }

            Accessible.role: Accessible.List
            Accessible.name: popup.picker.name

            delegate: PickerRow {
                readonly property PickerChoices choices: ListView.view as PickerChoices

                width: choices ? choices.width : 0
                height: choices ? choices.rowHeight : 0
                isCurrent: ListView.isCurrentItem
                isChosen: choices !== null && rowID === choices.picker.selectedID
                elidesMiddle: choices !== null && choices.picker.isSearchable
                onChosen: choices.chosen(index)
                onTextWidthChanged: {
                    if (choices)
                        choices.widest = Math.max(choices.widest, textWidth);
                }
            }
        }
        SlimScrollBar {
            anchors.right: list.right
            anchors.top: list.top
            anchors.bottom: list.bottom
            flickable: list
        }
    }
    Connections {
        target: popup.picker.Window.window

        function onActiveChanged() {
            popup.picker.close(true);
        }
    }
    onWidthChanged: popup.place()
    onHeightChanged: popup.place()
}
