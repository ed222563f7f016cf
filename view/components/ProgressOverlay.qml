import QtQuick
import Ombrivane.Private

// Something is under way and nothing else can be done meanwhile.
Item {
    id: overlay

    required property string message
    property string waitText: ""
    property string waitHint: ""

    Aloud { text: overlay.visible ? overlay.message : "" }
    Dim {}
    Rectangle {
        objectName: "progress"
        anchors.centerIn: parent
        width: Math.min(parent.width - 2 * Theme.margin, 320)
        height: column.implicitHeight + 64
        radius: Theme.cardRadius
        color: Theme.whiteColor
        Column {
            id: column
            anchors { left: parent.left; right: parent.right; top: parent.top; margins: 20 }
            spacing: 8
            PlainText {
                width: parent.width
                horizontalAlignment: Text.AlignHCenter
                text: overlay.message
                font.weight: Font.Medium
            }
            WaitWords {
                width: parent.width
                visible: overlay.waitText !== ""
                alignment: Text.AlignHCenter
                weight: Font.Normal
                text: overlay.waitText
                hint: overlay.visible ? overlay.waitHint : ""
            }
        }
        ProgressLine {
            anchors { left: parent.left; right: parent.right; bottom: parent.bottom; margins: 20 }
            label: overlay.message
        }
    }
}
