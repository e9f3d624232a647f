import QtQuick
import Tovrel.Views

// The content of the palette's panel: the header with the search field, and the results below it.
FocusScope {
    id: view

    required property PaletteViewAdapter palette

    signal moveWanted()

    implicitWidth: 680
    implicitHeight: 460
    focus: true

    SpokenRow {
        id: spoken

        rows: list
        input: field.textInput
    }

    Connections {
        target: view.palette

        function onSearchFocusRequested() {
            field.takeFocus();
        }
        function onSelectedIndexChanged() {
            if (view.palette.selectedIndex !== list.currentIndex)
                spoken.rowMoved();
            list.highlightRow(view.palette.selectedIndex);
        }
        function onQueryChanged() {
            list.positionViewAtBeginning();
            spoken.typed();
        }
    }

    PaletteBackground {
        anchors.fill: parent
    }
    WindowDragArea {
        anchors.fill: parent
        onMoveWanted: view.moveWanted()
    }

    Item {
        id: header

        anchors.left: parent.left
        anchors.leftMargin: 22
        anchors.right: parent.right
        anchors.rightMargin: 22
        anchors.top: parent.top
        anchors.topMargin: 18
        height: 48

        Item {
            id: icon

            anchors.verticalCenter: parent.verticalCenter
            width: 36
            height: 36

            Image {
                id: appIcon

                anchors.fill: parent
                visible: appIcon.status === Image.Ready
                source: view.palette.appIconSource
                sourceSize.width: 36
                sourceSize.height: 36
                fillMode: Image.PreserveAspectFit
                Accessible.ignored: true
            }
            Symbol {
                anchors.centerIn: parent
                visible: !appIcon.visible
                name: "magnifyingglass"
                colour: "#19c8b9"
                size: 28
            }
        }
        SearchField {
            id: field

            objectName: "field"
            anchors.left: icon.right
            anchors.leftMargin: 14
            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            query: view.palette.query
            appName: view.palette.appName
            onEdited: text => view.palette.query = text
            onSubmitted: view.palette.executeSelection()
            onDismissed: view.palette.dismiss()
            onMoved: delta => view.palette.moveSelection(delta)
        }
    }

    ResultList {
        id: list

        objectName: "results"
        anchors.left: parent.left
        anchors.leftMargin: 12
        anchors.right: parent.right
        anchors.rightMargin: 12
        anchors.top: header.bottom
        anchors.topMargin: 20
        anchors.bottom: parent.bottom
        anchors.bottomMargin: 4
        bottomMargin: 8
        visible: list.count > 0
        model: view.palette.results
        showCheckedStatus: view.palette.showCheckedStatus
        onChosen: row => view.palette.executeRow(row)

        delegate: PaletteRow {
            readonly property ResultList list: ListView.view as ResultList

            width: list ? list.width : 0
            isSelected: ListView.isCurrentItem
            showCheckedStatus: list ? list.showCheckedStatus : false
            count: list ? list.count : 0
            onClicked: list.chosen(index)
        }
    }

    // The list fades out where it goes on.
    Rectangle {
        anchors.left: list.left
        anchors.right: list.right
        anchors.top: list.top
        height: list.fadeAbove
        visible: list.visible && !list.atYBeginning
        gradient: Gradient {
            GradientStop { position: 0; color: "#ffe2f6ed" }
            GradientStop { position: 1; color: "#00e2f6ed" }
        }
    }
    Rectangle {
        anchors.left: list.left
        anchors.right: list.right
        anchors.bottom: list.bottom
        height: list.fadeBelow
        visible: list.visible && !list.atYEnd
        gradient: Gradient {
            GradientStop { position: 0; color: "#00fff1d3" }
            GradientStop { position: 1; color: "#fffff1d3" }
        }
    }

    EmptyState {
        objectName: "empty"
        anchors.horizontalCenter: parent.horizontalCenter
        y: header.y + header.height + (parent.height - header.y - header.height - height) / 2 - 12
        visible: list.count === 0
        isQueryBlank: view.palette.isQueryBlank
    }
}
