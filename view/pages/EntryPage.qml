import QtQuick
import Ombrivane

// A placeholder until the component has started, then the search.
Item {
    id: page

    required property EntryAdapter screen

    Rectangle { anchors.fill: parent; color: Theme.canvasColor }
    ProgressLine {
        anchors.centerIn: parent
        width: 120
        visible: page.screen.content === null
        label: qsTr("Starting")
    }
    Loader {
        anchors.fill: parent
        active: page.screen.content !== null
        sourceComponent: MainView { screen: page.screen.content }
    }
}
