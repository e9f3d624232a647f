import QtQuick

// How one kind of text field looks.
QtObject {
    required property color fill
    // Without the keyboard focus.
    required property color fillAtRest
    required property color placeholder
    required property font font
    required property int height
    required property real radius
    // Between the text and either side.
    required property int inset
    // Between that and the placeholder, which stands behind the cursor.
    required property int placeholderInset
}
