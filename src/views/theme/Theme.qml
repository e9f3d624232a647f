pragma Singleton

import QtQuick

// The look and size of everything. A variant, dark or with high contrast, replaces the object `colours`; everything
// with a colour follows.
QtObject {
    id: theme

    readonly property ThemeColours colours: ThemeColours {}
    readonly property ThemeFonts fonts: ThemeFonts {}
    readonly property ThemeRadii radii: ThemeRadii {}

    readonly property PaletteSizes palette: PaletteSizes {}
    readonly property SettingsSizes settings: SettingsSizes {}
    readonly property AlertSizes alert: AlertSizes {}

    readonly property ThemeButtons buttons: ThemeButtons {
        colours: theme.colours
        fonts: theme.fonts
        radii: theme.radii
        settings: theme.settings
        alert: theme.alert
    }
    readonly property ThemeFields fields: ThemeFields {
        colours: theme.colours
        fonts: theme.fonts
        radii: theme.radii
        palette: theme.palette
        settings: theme.settings
    }
}
