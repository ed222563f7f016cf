import QtQuick
import Ombrivane

// An airport on the line of a segment.
Item {
    id: stop

    required property string place
    required property string time
    readonly property real dotPosition: Theme.captionSize * 0.6 + 2

    implicitHeight: texts.implicitHeight

    Rectangle {
        x: 5
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
        x: 28
        width: parent.width - x
        CardText { width: parent.width; text: stop.place; font.pixelSize: Theme.captionSize }
        CardText { width: parent.width; text: stop.time; tint: Theme.placeHolderColor; font.pixelSize: Theme.captionSize }
    }
}
