import QtQuick

// The list of applications to choose from.
ListView {
    signal chosen()
}
