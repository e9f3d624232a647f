import QtQuick

// Where a window without a frame is moved by.
Item {
    id: area

    DragHandler {
        target: null
        onActiveChanged: {
            if (active)
                area.Window.window.startSystemMove();
        }
    }
}
