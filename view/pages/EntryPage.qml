import QtQuick
import Ombrivane.Private

// A placeholder until the component has started, then the search.
Item {
    id: page

    required property EntryAdapter screen

    Rectangle { anchors.fill: parent; color: Theme.canvasColor }
    ProgressLine {
        anchors.centerIn: parent
        width: 120
        visible: page.screen.content === null
        label: Words.starting
    }
    // By its address, so that the first frame does not wait for the types of the search.
    Loader {
        readonly property MainViewAdapter main: page.screen.content
        anchors.fill: parent
        onMainChanged: if (main !== null) setSource(Qt.resolvedUrl("MainView.qml"), {"screen": main}); else source = ""
    }
}
