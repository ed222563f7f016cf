import QtQuick
import Ombrivane.Private

// In the place of a list.
ResultsContent {
    id: state

    property alias imageName: end.imageName
    property alias title: end.title
    property alias text: end.text
    property alias action: end.action
    signal acted

    EndState {
        id: end
        anchors { fill: parent; topMargin: state.topInset; bottomMargin: state.bottomInset }
        imageName: ""
        title: ""
        text: ""
        onActed: state.acted()
    }
}
