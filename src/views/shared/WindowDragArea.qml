import QtQuick

// The area by which the user moves a frameless window. Each press asks the window manager once, which then moves the
// window itself. Asked again meanwhile, it would go on after the button is released.
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
