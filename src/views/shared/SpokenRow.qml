import QtQuick
import Tovrel.Views

// Leads a screen reader to the highlighted row of a list when the highlight moves, although the keyboard focus stays in
// the field above. Leads it back to the field when the user types.
Item {
    id: lead

    required property ListView rows
    required property Item input

    property bool hasTyped: false
    property bool isRowSpoken: false

    function rowMoved() {
        speak.start();
    }

    function typed() {
        lead.hasTyped = true;
        speak.start();
    }

    // Waits until everything that one key changes has changed.
    Timer {
        id: speak

        interval: 0
        onTriggered: {
            if (!lead.hasTyped && lead.rows.currentItem) {
                lead.isRowSpoken = true;
                reader.moveTo(lead.rows.currentItem);
            } else if (lead.isRowSpoken) {
                lead.isRowSpoken = false;
                reader.moveTo(lead.input);
            }
            lead.hasTyped = false;
        }
    }
    ScreenReader {
        id: reader
    }
}
