import QtQuick
import Ombrivane

// Something is under way and nothing else can be done meanwhile.
Rectangle {
    id: overlay

    required property string message

    color: Theme.dimColor

    Aloud { text: overlay.visible ? overlay.message : "" }
    Blocker { anchors.fill: parent }
    Rectangle {
        anchors.centerIn: parent
        width: Math.min(parent.width - 2 * Theme.margin, 280)
        height: text.implicitHeight + 64
        radius: Theme.cardRadius
        color: Theme.whiteColor
        PlainText {
            id: text
            anchors { left: parent.left; right: parent.right; top: parent.top; margins: 20 }
            horizontalAlignment: Text.AlignHCenter
            text: overlay.message
            font.weight: Font.Medium
        }
        ProgressLine {
            anchors { left: parent.left; right: parent.right; bottom: parent.bottom; margins: 20 }
            label: overlay.message
        }
    }
}
