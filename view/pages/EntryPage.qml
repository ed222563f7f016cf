import QtQuick
import Ombrivane.Private

// A placeholder until the component has started, then the search. Its page is made meanwhile, a piece at a time.
Item {
    id: page

    required property EntryAdapter screen
    readonly property bool isReady: screen.hasStarted && search.status === Loader.Ready

    Rectangle { anchors.fill: parent; color: Theme.canvasColor }
    ProgressLine {
        objectName: "starting"
        anchors.centerIn: parent
        width: 120
        visible: !page.isReady
        label: Words.starting
    }
    // What is being made for a view that goes is of no use.
    Connections { target: page.screen; function onLeft() { search.source = "" } }
    // By its address, so that the first frame does not wait for the types of the search.
    Loader {
        id: search
        anchors.fill: parent
        asynchronous: true
        visible: page.isReady
        Component.onDestruction: source = ""
        Component.onCompleted: setSource(Qt.resolvedUrl("MainView.qml"), {"screen": page.screen.search})
    }
}
