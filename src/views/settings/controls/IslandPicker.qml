import QtQuick
import Tovrel.Views

// A control to choose one of many choices from a list that opens.
IslandPressable {
    id: picker

    required property string name
    required property SettingsRowsModel choices
    required property string selectedID
    required property string text
    // Shown while nothing is chosen.
    property string placeholder: ""
    property bool isSearchable: false
    property bool compact: false
    readonly property bool isOpen: popup.status !== Loader.Null

    signal chosen(string id)

    function open() {
        popup.setSource("PickerPopup.qml", {"picker": picker});
    }

    // Closes the list. With `takesFocus` the focus comes back to the picker.
    function close(takesFocus: bool) {
        popup.source = "";
        if (takesFocus)
            picker.forceActiveFocus(Qt.PopupFocusReason);
    }

    implicitWidth: Math.min(Theme.settings.pickerWidth, Math.ceil(label.implicitWidth) + 46)
    implicitHeight: picker.compact ? Theme.settings.compactControlHeight : Theme.settings.controlHeight

    Accessible.role: Accessible.ComboBox
    Accessible.name: picker.name
    Accessible.description: picker.text

    Keys.onDownPressed: picker.open()
    Keys.onUpPressed: picker.open()
    onPressed: picker.open()

    FocusRing {
        control: picker
        controlRadius: Theme.radii.field
    }
    RoundedBox {
        anchors.fill: parent
        radius: Theme.radii.field
        from: Theme.colours.field
        borderWidth: 1
        borderColour: picker.isOpen ? Theme.colours.accent
                    : picker.isHovered ? Theme.colours.lineHovered : Theme.colours.line
    }
    Text {
        id: label

        anchors.left: parent.left
        anchors.leftMargin: 13
        anchors.right: chevron.left
        anchors.rightMargin: 6
        anchors.verticalCenter: parent.verticalCenter
        text: picker.text === "" ? picker.placeholder : picker.text
        color: picker.text === "" ? Theme.colours.faint : Theme.colours.ink
        font: picker.compact ? Theme.fonts.smallLabel : Theme.fonts.label
        elide: picker.isSearchable ? Text.ElideMiddle : Text.ElideRight
        textFormat: Text.PlainText
        Accessible.ignored: true
    }
    Symbol {
        id: chevron

        anchors.right: parent.right
        anchors.rightMargin: 10
        anchors.verticalCenter: parent.verticalCenter
        name: "chevron.up.chevron.down"
        colour: Theme.colours.accentInk
        size: Theme.settings.controlSymbol
    }
    Loader {
        id: popup
    }
}
