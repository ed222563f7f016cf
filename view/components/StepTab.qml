import QtQuick
import Ombrivane.Private

// A tab of a choice in steps: what it leads to, and beneath it what was chosen there, with a tick, or that it is to be chosen.
MarkedTab {
    id: tab

    required property string label
    property string time: ""
    property string price: ""
    required property string openText
    readonly property bool done: price !== ""
    readonly property color content: marked ? Theme.secondaryTextColor : Theme.blackColor

    implicitHeight: Math.max(Theme.target, texts.implicitHeight + 12)
    Accessible.name: label

    background: Rectangle {
        radius: Math.min(height / 2, 24)
        color: tab.marked ? Theme.secondaryColor : tab.down ? Theme.segmentColor : Theme.whiteColor
        border.width: 1
        border.color: tab.marked || !tab.done ? Theme.hairlineColor : Theme.secondaryColor
    }
    contentItem: Item {
        Column {
            id: texts
            anchors { left: parent.left; right: parent.right; leftMargin: 8; rightMargin: 8; verticalCenter: parent.verticalCenter }
            PlainText {
                width: parent.width
                text: tab.text
                color: tab.content
                font.pixelSize: Theme.captionSize
                font.weight: Font.Medium
                spread: 1.1
                horizontalAlignment: Text.AlignHCenter
                Accessible.ignored: true
            }
            PlainText {
                objectName: "open"
                visible: !tab.done
                width: parent.width
                text: tab.openText
                color: tab.marked ? tab.content : Theme.placeHolderColor
                font.pixelSize: Theme.smallSize
                spread: 1.1
                horizontalAlignment: Text.AlignHCenter
                Accessible.ignored: true
            }
            // Time and price stand beside each other, or where they have no room, beneath.
            Grid {
                id: chosen
                objectName: "chosenOffer"
                readonly property real wanted: tick.width + clock.width + cost.width + 2 * columnSpacing
                visible: tab.done
                anchors.horizontalCenter: parent.horizontalCenter
                columns: wanted <= parent.width ? 2 : 1
                columnSpacing: 5
                horizontalItemAlignment: Grid.AlignHCenter
                Row {
                    spacing: 3
                    Icon {
                        id: tick
                        objectName: "tick"
                        anchors.verticalCenter: parent.verticalCenter
                        width: 14
                        height: 14
                        name: "doneIcon"
                        color: tab.marked ? tab.content : Theme.secondaryColor
                    }
                    PlainText {
                        id: clock
                        width: Math.ceil(implicitWidth)
                        wrapMode: Text.NoWrap
                        text: tab.time
                        color: tab.content
                        font.pixelSize: Theme.smallSize
                        font.weight: Font.DemiBold
                        spread: 1.1
                        Accessible.ignored: true
                    }
                }
                PlainText {
                    id: cost
                    width: Math.min(Math.ceil(implicitWidth), texts.width)
                    text: tab.price
                    color: tab.content
                    font.pixelSize: Theme.smallSize
                    spread: 1.1
                    Accessible.ignored: true
                }
            }
        }
    }
}
