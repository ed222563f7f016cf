import QtQuick
import Ombrivane.Private

// Dims what lies below, to the edges of the stage, and takes its taps.
Rectangle {
    id: dim

    signal tapped

    // Its margins are those of the device, whatever is written on it.
    LayoutMirroring.enabled: false
    anchors {
        fill: parent
        leftMargin: -Theme.safeLeft
        topMargin: -Theme.safeTop
        rightMargin: -Theme.safeRight
        bottomMargin: -Math.max(Theme.safeBottom, Theme.keyboardHeight)
    }
    color: Theme.dimColor

    Blocker { anchors.fill: parent; onClicked: dim.tapped() }
}
