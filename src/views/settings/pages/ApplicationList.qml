import QtQuick

// The list of the applications to choose from.
ListView {
    signal chosen()
}
