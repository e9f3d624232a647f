import QtQuick

// The kinds of buttons.
QtObject {
    id: buttons

    required property ThemeColours colours
    required property ThemeFonts fonts
    required property ThemeRadii radii
    required property SettingsSizes settings
    required property AlertSizes alert

    // Buttons of the settings: a card's main action, removal, and other actions.
    readonly property ButtonLook primary: ButtonLook {
        from: buttons.colours.chosen
        to: buttons.colours.chosenLight
        hoveredFrom: buttons.colours.primaryHovered
        hoveredTo: buttons.colours.primaryHoveredLight
        ink: buttons.colours.textOnAccent
        shape: buttons.action
    }
    readonly property ButtonLook danger: ButtonLook {
        from: buttons.colours.dangerTint
        to: buttons.colours.dangerTint
        hoveredFrom: buttons.colours.dangerTintHovered
        hoveredTo: buttons.colours.dangerTintHovered
        ink: buttons.colours.danger
        border: buttons.colours.dangerBorder
        shape: buttons.action
    }
    readonly property ButtonLook secondary: ButtonLook {
        from: buttons.colours.card
        to: buttons.colours.card
        hoveredFrom: buttons.colours.buttonHovered
        hoveredTo: buttons.colours.buttonHovered
        ink: buttons.colours.ink
        border: buttons.colours.line
        shape: buttons.action
    }

    // Buttons of the settings with only a symbol.
    readonly property ButtonLook icon: ButtonLook {
        from: buttons.colours.trough
        to: buttons.colours.trough
        hoveredFrom: buttons.colours.buttonHovered
        hoveredTo: buttons.colours.buttonHovered
        ink: buttons.colours.quiet
        shape: buttons.symbolOnly
    }
    readonly property ButtonLook dangerIcon: ButtonLook {
        from: buttons.colours.dangerTint
        to: buttons.colours.dangerTint
        hoveredFrom: buttons.colours.dangerTintHovered
        hoveredTo: buttons.colours.dangerTintHovered
        ink: buttons.colours.danger
        shape: buttons.symbolOnly
    }

    // The answers to a question: the default one, which Return gives, and the other.
    readonly property ButtonLook defaultAnswer: ButtonLook {
        from: buttons.colours.accent
        to: buttons.colours.accentLight
        hoveredFrom: buttons.colours.defaultAnswerHovered
        hoveredTo: buttons.colours.defaultAnswerHoveredLight
        ink: buttons.colours.textOnAccent
        shape: buttons.answerShape
    }
    readonly property ButtonLook answer: ButtonLook {
        from: buttons.colours.card
        to: buttons.colours.card
        hoveredFrom: buttons.colours.buttonHovered
        hoveredTo: buttons.colours.buttonHovered
        ink: buttons.colours.ink
        border: buttons.colours.line
        shape: buttons.answerShape
    }

    readonly property ButtonShape action: ButtonShape {
        height: buttons.settings.controlHeight
        radius: buttons.radii.button
        font: buttons.fonts.name
        inset: 18
        focusRing: buttons.colours.focusRing
    }
    readonly property ButtonShape symbolOnly: ButtonShape {
        height: buttons.settings.compactControlHeight
        radius: buttons.radii.iconButton
        focusRing: buttons.colours.focusRing
    }
    readonly property ButtonShape answerShape: ButtonShape {
        height: buttons.alert.answerHeight
        radius: buttons.radii.answer
        font: buttons.fonts.answer
        inset: 20
        minimumWidth: 112
        isCentred: true
        pressedOpacity: 1
        focusRing: buttons.colours.answerFocusRing
        focusRingDistance: 4
    }
}
