import QtQuick
import Tovrel.Views

// The column of the sidebar's entries, with what they share.
Column {
    required property SettingsViewAdapter settings

    signal moved(int index)
}
