import QtQuick
import Ombrivane

// A text of a card, which its control reads out as a whole; while its content is awaited, the shape of it.
PlainText {
    id: line

    property bool awaited: false
    property color tint: Theme.blackColor

    color: awaited ? "transparent" : tint
    spread: 1.2
    Accessible.ignored: true

    Rectangle {
        visible: line.awaited
        x: line.horizontalAlignment === Text.AlignRight ? parent.width - width
         : line.horizontalAlignment === Text.AlignHCenter ? (parent.width - width) / 2 : 0
        width: Math.min(parent.width, line.contentWidth)
        height: parent.height * 0.7
        anchors.verticalCenter: parent.verticalCenter
        radius: 4
        color: Theme.hairlineColor
    }
}
