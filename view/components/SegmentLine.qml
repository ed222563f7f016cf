import QtQuick
import QtQuick.Layouts
import Ombrivane.Private

// One segment: its carrier, the two airports on a line, and the connection that follows.
Column {
    id: item

    required property SegmentAdapter modelData

    spacing: 4

    RowLayout {
        width: parent.width
        spacing: 8
        Logo { size: 20; url: item.modelData.carrierLogo }
        CardText {
            Layout.fillWidth: true
            text: item.modelData.carrier
            font.pixelSize: Theme.captionSize
            font.weight: Font.Medium
        }
    }
    CardText {
        visible: item.modelData.operatedBy !== ""
        anchors { left: parent.left; leftMargin: 28 }
        width: parent.width - 28
        text: item.modelData.operatedBy
        color: Theme.placeHolderColor
        font.pixelSize: Theme.captionSize
    }
    Item {
        width: parent.width
        height: stops.implicitHeight
        Rectangle {
            anchors { left: parent.left; leftMargin: 9 }
            y: from.dotPosition
            width: 2
            height: to.y + to.dotPosition - y
            color: Theme.secondaryColor
        }
        Column {
            id: stops
            width: parent.width
            spacing: 8
            SegmentStop { id: from; width: parent.width; place: item.modelData.from; time: item.modelData.departure }
            SegmentStop { id: to; width: parent.width; place: item.modelData.to; time: item.modelData.arrival }
        }
    }
    Item {
        visible: item.modelData.connection !== ""
        width: parent.width
        height: connection.implicitHeight + 16
        Column {
            anchors { left: parent.left; leftMargin: 9 }
            spacing: 4
            clip: true
            height: parent.height
            Repeater {
                model: Math.ceil(parent.height / 6)
                Rectangle { width: 2; height: 3; color: Theme.formBorderColor }
            }
        }
        Rectangle {
            anchors { left: parent.left; leftMargin: 28 }
            width: Math.min(parent.width - 28, connection.implicitWidth + 20)
            height: connection.implicitHeight + 8
            anchors.verticalCenter: parent.verticalCenter
            radius: Math.min(height / 2, 12)
            color: Theme.whiteColor
            CardText {
                id: connection
                anchors { left: parent.left; leftMargin: 10 }
                width: item.width - 48
                anchors.verticalCenter: parent.verticalCenter
                text: item.modelData.connection
                color: Theme.placeHolderColor
                font.pixelSize: Theme.captionSize
            }
        }
    }
}
