import QtQuick
import Ombrivane.Private

// At the foot of a page that shows shapes: what they stand for. It comes with its words.
Rectangle {
    id: panel

    required property string text
    required property string hint

    objectName: "waitPanel"
    implicitHeight: words.implicitHeight + 32
    radius: Theme.cardRadius
    color: Theme.whiteColor
    border.width: 1
    border.color: Theme.hairlineColor
    visible: opacity > 0
    opacity: text !== "" ? 1 : 0

    Behavior on opacity { NumberAnimation { duration: Theme.stateDuration; easing.type: Easing.OutCubic } }

    WaitWords {
        id: words
        anchors { left: parent.left; right: parent.right; top: parent.top; margins: Theme.margin; topMargin: 12 }
        text: panel.text
        hint: panel.hint
    }
    ProgressLine {
        anchors { left: parent.left; right: parent.right; bottom: parent.bottom; margins: Theme.margin; bottomMargin: 8 }
        visible: panel.text !== ""
        label: panel.text
    }
}
