import QtQuick

// Sizes (in pixels) and weights of texts, the largest first. NativeTheme.h has the family.
QtObject {
    readonly property font query: Qt.font({pixelSize: 26, weight: Font.ExtraBold})
    readonly property font pageTitle: Qt.font({pixelSize: 24, weight: Font.ExtraBold})
    readonly property font programName: Qt.font({pixelSize: 19, weight: Font.ExtraBold})
    // Of a question, a dialog, and a list without results.
    readonly property font heading: Qt.font({pixelSize: 18, weight: Font.ExtraBold})
    // Of a result and of a card.
    readonly property font title: Qt.font({pixelSize: 16, weight: Font.ExtraBold})
    readonly property font answer: Qt.font({pixelSize: 15, weight: Font.ExtraBold})
    readonly property font applicationName: Qt.font({pixelSize: 15, weight: Font.Bold})
    // Of a row in a list, an entry of the sidebar, a button.
    readonly property font name: Qt.font({pixelSize: 14, weight: Font.Bold})
    // Labels of controls, and the choice that a control shows.
    readonly property font label: Qt.font({pixelSize: 14, weight: Font.DemiBold})
    readonly property font body: Qt.font({pixelSize: 14, weight: Font.Medium})
    // In capsules and segments.
    readonly property font tag: Qt.font({pixelSize: 13, weight: Font.Bold})
    readonly property font smallLabel: Qt.font({pixelSize: 13, weight: Font.DemiBold})
    readonly property font smallBody: Qt.font({pixelSize: 13, weight: Font.Medium})
    readonly property font keycap: Qt.font({pixelSize: 12, weight: Font.ExtraBold})
    readonly property font columnHeading: Qt.font({pixelSize: 12, weight: Font.Bold})
    // The second line of a row.
    readonly property font detail: Qt.font({pixelSize: 12, weight: Font.Medium})
    readonly property font smallDetail: Qt.font({pixelSize: 11, weight: Font.Medium})
}
