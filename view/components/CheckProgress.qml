import QtQuick
import Ombrivane.Private

// How much of a list is done, in words and as a line.
Item {
    id: progress

    required property string text
    required property real part

    objectName: "checkProgress"
    implicitHeight: words.implicitHeight + 8

    PlainText {
        id: words
        width: parent.width
        text: progress.text
        color: progress.part === 1 ? Theme.secondaryColor : Theme.blackColor
        font.pixelSize: Theme.captionSize
        font.weight: Font.Medium
    }
    Rectangle {
        anchors { left: parent.left; right: parent.right; bottom: parent.bottom }
        height: 4
        radius: 2
        color: Theme.hairlineColor
        Rectangle {
            anchors.left: parent.left
            width: parent.width * progress.part
            height: parent.height
            radius: 2
            color: Theme.secondaryColor
            Behavior on width { NumberAnimation { duration: Theme.stateDuration; easing.type: Easing.OutCubic } }
        }
    }
}
