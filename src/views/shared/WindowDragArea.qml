import QtQuick

// Where a window without a frame is moved by. The window manager is asked once a press and then moves the window
// by itself; asked again meanwhile, it would go on after the button has come up.
MouseArea {
    id: area

    property point start
    property bool isAsked: false

    signal moveWanted()

    acceptedButtons: Qt.LeftButton
    onPressed: mouse => {
        area.start = Qt.point(mouse.x, mouse.y);
        area.isAsked = false;
    }
    onPositionChanged: mouse => {
        const distance = Math.abs(mouse.x - area.start.x) + Math.abs(mouse.y - area.start.y);
        if (!area.isAsked && distance >= Application.styleHints.startDragDistance) {
            area.isAsked = true;
            area.moveWanted();
        }
    }
}
