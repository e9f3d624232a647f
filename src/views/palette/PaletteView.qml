import QtQuick
import Tovrel.Views

// The content of the palette's panel: the header with the search field, and the results below it.
FocusScope {
    id: view

    required property PaletteViewAdapter palette

    // The shape of the window and the colour of its edge where it cannot be transparent.
    readonly property real cornerRadius: backdrop.cornerRadius
    readonly property color edge: backdrop.edge

    signal moveWanted()

    implicitWidth: Theme.palette.width
    implicitHeight: Theme.palette.height
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
        id: backdrop

        anchors.fill: parent
    }
    WindowDragArea {
        anchors.fill: parent
        onMoveWanted: view.moveWanted()
    }

    Item {
        id: header

        anchors.left: parent.left
        anchors.leftMargin: Theme.palette.headerInset
        anchors.right: parent.right
        anchors.rightMargin: Theme.palette.headerInset
        anchors.top: parent.top
        anchors.topMargin: 18
        height: Theme.palette.fieldHeight

        Item {
            id: icon

            anchors.verticalCenter: parent.verticalCenter
            width: Theme.palette.applicationIcon
            height: Theme.palette.applicationIcon

            Image {
                id: appIcon

                anchors.fill: parent
                visible: appIcon.status === Image.Ready
                source: view.palette.appIconSource
                sourceSize.width: Theme.palette.applicationIcon
                sourceSize.height: Theme.palette.applicationIcon
                fillMode: Image.PreserveAspectFit
                Accessible.ignored: true
            }
            Symbol {
                anchors.centerIn: parent
                visible: !appIcon.visible
                name: "magnifyingglass"
                colour: Theme.colours.accent
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
            text: view.palette.query
            appName: view.palette.appName
            onEdited: text => view.palette.query = text
            onAccepted: view.palette.executeSelection()
            onDismissed: view.palette.dismiss()
            onMoved: delta => view.palette.moveSelection(delta)
        }
    }

    ResultList {
        id: list

        objectName: "results"
        anchors.left: parent.left
        anchors.leftMargin: Theme.palette.listInset
        anchors.right: parent.right
        anchors.rightMargin: Theme.palette.listInset
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

    // The list fades out at an end beyond which it has more rows.
    Rectangle {
        anchors.left: list.left
        anchors.right: list.right
        anchors.top: list.top
        height: list.fadeAbove
        visible: list.visible && !list.atYBeginning
        gradient: Gradient {
            GradientStop { position: 0; color: Theme.colours.paletteFadeAbove }
            GradientStop { position: 1; color: Qt.alpha(Theme.colours.paletteFadeAbove, 0) }
        }
    }
    Rectangle {
        anchors.left: list.left
        anchors.right: list.right
        anchors.bottom: list.bottom
        height: list.fadeBelow
        visible: list.visible && !list.atYEnd
        gradient: Gradient {
            GradientStop { position: 0; color: Qt.alpha(Theme.colours.paletteFadeBelow, 0) }
            GradientStop { position: 1; color: Theme.colours.paletteFadeBelow }
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
