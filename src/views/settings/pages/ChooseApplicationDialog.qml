import QtQuick
import Tovrel.Views

// A dialog over the whole window to choose the installed application that gets a rule.
FocusScope {
    id: dialog

    required property AppsSettings rules
    required property Item opener

    signal closed(opener: Item)

    function add() {
        const id = rows.idAt(list.currentIndex);
        if (id === "")
            return;
        dialog.closed(dialog.opener);
        dialog.rules.addRule(id);
    }

    focus: true
    Component.onCompleted: search.textInput.forceActiveFocus(Qt.PopupFocusReason)

    Accessible.role: Accessible.Dialog
    Accessible.name: qsTr("Choose Application")

    Keys.onEscapePressed: dialog.closed(dialog.opener)
    Keys.onReturnPressed: dialog.add()
    Keys.onEnterPressed: dialog.add()
    Keys.onUpPressed: list.currentIndex = Math.max(0, list.currentIndex - 1)
    Keys.onDownPressed: list.currentIndex = Math.min(list.count - 1, list.currentIndex + 1)

    Rectangle {
        anchors.fill: parent
        color: Theme.colours.veil

        MouseArea {
            anchors.fill: parent
            acceptedButtons: Qt.AllButtons
            hoverEnabled: true
            onWheel: wheel => wheel.accepted = true
        }
    }
    FilteredRowsModel {
        id: rows

        source: dialog.rules.applications
        filter: search.text
    }
    SpokenRow {
        id: spoken

        rows: list
        input: search.textInput
    }
    SoftShadow {
        anchors.fill: box
        radius: box.radius
    }
    RoundedBox {
        id: box

        anchors.centerIn: parent
        width: Math.min(460, dialog.width - Theme.settings.outer)
        height: Math.min(500, dialog.height - Theme.settings.outer)
        radius: Theme.radii.window
        from: Theme.colours.card
        borderWidth: 1
        borderColour: Theme.colours.line

        Text {
            id: title

            x: Theme.settings.outer
            y: 22
            width: box.width - 2 * Theme.settings.outer
            text: qsTr("Choose Application")
            color: Theme.colours.ink
            font: Theme.fonts.heading
            elide: Text.ElideRight
        }
        IslandTextField {
            id: search

            objectName: "search"
            x: Theme.settings.outer
            y: title.y + title.height + 14
            width: box.width - 2 * Theme.settings.outer
            symbol: "magnifyingglass"
            text: ""
            placeholder: qsTr("Search")
            onEdited: text => {
                search.text = text;
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
            font: Theme.fonts.label
        }
        ApplicationList {
            id: list

            objectName: "applications"
            x: Theme.settings.outer
            anchors.top: search.bottom
            anchors.topMargin: 12
            anchors.bottom: add.top
            anchors.bottomMargin: 16
            width: box.width - 2 * Theme.settings.outer
            clip: true
            spacing: 2
            model: rows
            currentIndex: 0
            onChosen: dialog.add()
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
            Accessible.name: qsTr("Choose Application")

            delegate: ApplicationRow {
                readonly property ApplicationList list: ListView.view as ApplicationList

                width: list ? list.width - 12 : 0
                isCurrent: ListView.isCurrentItem
                onSelected: list.currentIndex = index
                onChosen: list.chosen()
            }
        }
        SlimScrollBar {
            anchors.right: list.right
            anchors.top: list.top
            anchors.bottom: list.bottom
            flickable: list
        }
        IslandButton {
            objectName: "cancel"
            anchors.right: add.left
            anchors.rightMargin: Theme.settings.gap
            anchors.bottom: add.bottom
            text: qsTr("Cancel")
            onPressed: dialog.closed(dialog.opener)
        }
        IslandButton {
            id: add

            objectName: "add"
            anchors.right: parent.right
            anchors.rightMargin: Theme.settings.outer
            anchors.bottom: parent.bottom
            anchors.bottomMargin: Theme.settings.outer
            look: Theme.buttons.primary
            text: qsTr("Add")
            enabled: list.currentIndex >= 0 && list.count > 0
            onPressed: dialog.add()
        }
    }
}
