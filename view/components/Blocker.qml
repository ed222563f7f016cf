import QtQuick

// Takes the taps that nothing in front of it has taken, so that they reach nothing that lies below. A TapHandler would
// not: it lets them through, and hears what others have taken.
MouseArea {
    acceptedButtons: Qt.AllButtons
    Accessible.ignored: true
}
