import QtQuick

// The look of one kind of text field.
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
    // Between the text's beginning and the placeholder, which is behind the cursor.
    required property int placeholderInset
}
