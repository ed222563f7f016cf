import QtQuick
import Ombrivane.Private

// An airport on the line of a segment.
Item {
    id: stop

    property alias place: placeText.text
    property alias time: timeText.text
    readonly property real dotPosition: Theme.captionSize * 0.6 + 2

    implicitHeight: texts.implicitHeight

    Rectangle {
        anchors { left: parent.left; leftMargin: 5 }
        y: stop.dotPosition - height / 2
        width: 10
        height: 10
        radius: 5
        color: Theme.segmentColor
        border.width: 2
        border.color: Theme.secondaryColor
    }
    Column {
        id: texts
        anchors { left: parent.left; leftMargin: 28 }
        width: parent.width - 28
        CardText { id: placeText; width: parent.width; font.pixelSize: Theme.captionSize }
        CardText { id: timeText; width: parent.width; color: Theme.placeHolderColor; font.pixelSize: Theme.captionSize }
    }
}
