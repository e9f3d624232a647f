import QtQuick

// The kinds of text fields.
QtObject {
    id: fields

    required property ThemeColours colours
    required property ThemeFonts fonts
    required property ThemeRadii radii
    required property PaletteSizes palette
    required property SettingsSizes settings

    readonly property FieldLook form: FieldLook {
        fill: fields.colours.field
        fillAtRest: fields.colours.field
        placeholder: fields.colours.faint
        font: fields.fonts.body
        height: fields.settings.controlHeight
        radius: fields.radii.field
        inset: 12
        placeholderInset: 4
    }
    // The palette's field.
    readonly property FieldLook query: FieldLook {
        fill: fields.colours.field
        fillAtRest: fields.colours.paletteFieldAtRest
        placeholder: fields.colours.paletteFaint
        font: fields.fonts.query
        height: fields.palette.fieldHeight
        radius: fields.radii.searchField
        inset: 16
        placeholderInset: 5
    }
}
