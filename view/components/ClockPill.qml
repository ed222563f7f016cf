import QtQuick
import QtQuick.Shapes
import Ombrivane.Private

// The time that the price is held, with a ring that empties; in the last minute in the colour of what asks for a look, announced once.
Rectangle {
    id: pill

    required property string time
    required property string label
    required property real timeLeft
    required property bool lastMinute
    readonly property color tint: lastMinute ? Theme.primaryColor : Theme.secondaryColor

    readonly property real naturalWidth: left.implicitWidth + row.spacing + words.implicitWidth + 25

    implicitWidth: naturalWidth
    implicitHeight: row.implicitHeight + 12
    radius: Math.min(20, height / 2)
    color: Theme.whiteColor
    border.width: 1
    border.color: tint
    Accessible.role: Accessible.StaticText
    Accessible.name: Words.fill(Words.sessionClock, {time: time, label: label})

    Aloud { text: pill.lastMinute ? Words.sessionLastMinute : "" }
    // The words go below the time where there is no room beside it.
    Flow {
        id: row
        x: 12
        width: pill.width - 24
        anchors.verticalCenter: parent.verticalCenter
        spacing: 8
        Row {
            id: left
            spacing: 8
            Item {
                width: 18
                height: 18
                anchors.verticalCenter: parent.verticalCenter
                Rectangle {
                    anchors.fill: parent
                    radius: width / 2
                    color: "transparent"
                    border.width: 3
                    border.color: Theme.hairlineColor
                }
                Shape {
                    anchors.fill: parent
                    ShapePath {
                        strokeColor: pill.tint
                        strokeWidth: 3
                        fillColor: "transparent"
                        PathAngleArc { centerX: 9; centerY: 9; radiusX: 7.5; radiusY: 7.5; startAngle: -90; sweepAngle: 360 * pill.timeLeft }
                    }
                }
            }
            PlainText {
                objectName: "clock"
                text: pill.time
                color: pill.tint
                font.weight: Font.DemiBold
                wrapMode: Text.NoWrap
                spread: 1.1
                Accessible.ignored: true
            }
        }
        PlainText {
            id: words
            width: Math.min(implicitWidth, row.width)
            height: Math.max(left.height, implicitHeight)
            text: pill.label
            color: Theme.placeHolderColor
            font.pixelSize: Theme.captionSize
            verticalAlignment: Text.AlignVCenter
            spread: 1.1
            Accessible.ignored: true
        }
    }
}
