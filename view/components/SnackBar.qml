import QtQuick
import Ombrivane.Private

// A message that comes from the lower edge and goes by itself.
Item {
    id: bar

    required property string message
    required property bool shown
    // Beneath the message, where there is more to say.
    property string detail: ""
    property real arrival: shown ? 1 : 0

    objectName: "snackBar"
    implicitHeight: panel.height
    visible: arrival > 0
    opacity: arrival

    Aloud { text: !bar.shown ? "" : bar.detail !== "" ? bar.message + " " + bar.detail : bar.message }
    Behavior on arrival { NumberAnimation { duration: Theme.reducedMotion ? 0 : 250; easing.type: Easing.OutCubic } }

    TextMetrics { id: natural; font.family: Theme.fontFamily; font.pixelSize: Theme.bodySize; text: bar.message }
    TextMetrics { id: further; font.family: Theme.fontFamily; font.pixelSize: Theme.bodySize; text: bar.detail }
    Rectangle {
        id: panel
        objectName: "snackPanel"
        x: (parent.width - width) / 2
        y: Theme.reducedMotion ? 0 : (1 - bar.arrival) * (height + Theme.margin)
        width: Math.min(parent.width, Theme.contentWidth)
        height: Math.max(Theme.fieldHeight, words.implicitHeight + 24)
        radius: Theme.fieldRadius
        color: Theme.blackColor
        Blocker { anchors.fill: parent }
        Icon {
            id: icon
            anchors { left: parent.left; leftMargin: 14 }
            width: 24
            height: 24
            anchors.verticalCenter: parent.verticalCenter
            name: "xmark.circle"
            color: Theme.whiteColor
        }
        Column {
            id: words
            anchors { left: icon.right; leftMargin: 12; right: parent.right; rightMargin: 14; verticalCenter: parent.verticalCenter }
            spacing: 2
            PlainText {
                id: line
                // Two lines, in smaller letters where they are large: a message is not to take the page. A third one
                // only where the smallest letters need it.
                readonly property real fitting: Math.floor(Theme.bodySize * 1.75 * width / Math.max(1, natural.advanceWidth))
                width: parent.width
                font.pixelSize: Math.max(15, Math.min(Theme.bodySize, fitting))
                maximumLineCount: fitting < 15 ? 3 : 2
                elide: Text.ElideRight
                text: bar.message
                color: Theme.whiteColor
                Accessible.ignored: true
            }
            PlainText {
                objectName: "snackDetail"
                width: parent.width
                visible: text !== ""
                readonly property real fitting: Math.floor(Theme.bodySize * 1.75 * width / Math.max(1, further.advanceWidth))
                font.pixelSize: Math.max(13, Math.min(Theme.captionSize, fitting))
                text: bar.detail
                color: Theme.whiteColor
                Accessible.ignored: true
            }
        }
    }
}
