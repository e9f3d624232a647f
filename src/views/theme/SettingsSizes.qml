import QtQuick

// Measures of the settings, in pixels.
QtObject {
    // The size of the window where the screen has room; the window takes it from the view.
    readonly property int width: 920
    readonly property int height: 620

    readonly property int sidebarInset: 12
    readonly property int sidebarWidth: 208
    readonly property int sidebarEntryHeight: 42
    readonly property int headerHeight: 58
    readonly property int badgeHeight: 28

    // Distances: between neighbours, between cards, and between the edge of a page or dialog and its content.
    readonly property int gap: 12
    readonly property int inner: 16
    readonly property int outer: 24
    readonly property int cardPadding: 18
    readonly property int rowPadding: 14
    // Between the edge of a row and the icon at its beginning, and the control at its end.
    readonly property int rowStart: 12
    readonly property int rowEnd: 10

    readonly property int pickerWidth: 250
    readonly property int segmentsWidth: 396
    readonly property int controlHeight: 38
    readonly property int compactControlHeight: 32
    readonly property int recorderHeight: 34
    readonly property int pillHeight: 30

    readonly property int rowHeight: 52
    readonly property int rowSpacing: 6
    readonly property int controlRowHeight: 54
    readonly property int toggleHeight: 48
    readonly property int applicationRowHeight: 46
    readonly property int choiceHeight: 34

    readonly property int icon: 36
    readonly property int largeIcon: 52
    readonly property int badge: 32
    readonly property int rowIcon: 30
    readonly property int symbol: 20
    readonly property int controlSymbol: 16

    // The columns of the list of rules: the start of the name, the start of the identifier as a share of the width, the
    // width of the behaviour, and the room for a button after it.
    readonly property int ruleNameStart: 54
    readonly property real ruleIdentifierShare: 0.36
    readonly property int ruleBehaviorWidth: 140
    readonly property int ruleButtonWidth: 56
}
