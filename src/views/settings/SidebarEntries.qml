import QtQuick
import Tovrel.Views

// The column of the sidebar's entries, with their shared state.
Column {
    required property SettingsViewAdapter settings

    signal moved(int index)
}
