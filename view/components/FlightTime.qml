import QtQuick
import Ombrivane.Private

// When and where a journey starts or ends, and how many days later that is.
Item {
    id: item

    property alias time: clock.text
    property alias place: code.text
    property alias days: later.text
    property bool placeFirst: false

    implicitWidth: row.width + (later.visible ? 2 + later.width : 0)
    implicitHeight: clock.height
    width: implicitWidth
    height: implicitHeight

    Row {
        id: row
        anchors.left: parent.left
        layoutDirection: item.placeFirst ? Qt.RightToLeft : Qt.LeftToRight
        spacing: 5
        CardText {
            id: clock
            width: Math.ceil(implicitWidth)
            wrapMode: Text.NoWrap
            font.pixelSize: Theme.timeSize
            font.weight: Font.Medium
        }
        CardText {
            id: code
            y: clock.baselineOffset - baselineOffset
            width: Math.ceil(implicitWidth)
            wrapMode: Text.NoWrap
            color: Theme.placeHolderColor
        }
    }
    CardText {
        id: later
        anchors { right: parent.right; top: parent.top }
        visible: text !== ""
        width: Math.ceil(implicitWidth)
        wrapMode: Text.NoWrap
        font.pixelSize: Theme.smallSize
        font.weight: Font.Medium
    }
}
