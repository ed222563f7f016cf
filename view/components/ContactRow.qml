import QtQuick
import Ombrivane.Private

// One line of what is to be filled in: done with a tick, to do with the way to it, marked where it was left out.
Pressable {
    id: item

    required property ContactLineAdapter row

    objectName: "contactRow"
    implicitHeight: Math.max(60, texts.implicitHeight + 16)
    enabled: row.tapEnabled
    Accessible.name: row.isMarked ? Words.fill(Words.fieldIsMissing, {field: row.title}) : row.title
    Accessible.description: row.detail
    onClicked: row.tap()

    background: Item { Rectangle {
        anchors { fill: parent; leftMargin: -8; rightMargin: -8 }
        radius: Theme.fieldRadius
        color: item.down ? Theme.segmentColor : "transparent"
        border.width: item.row.isMarked ? 2 : 0
        border.color: Theme.primaryColor
    } }
    contentItem: Item {
        Icon {
            id: icon
            width: 24
            height: 24
            anchors { left: parent.left; verticalCenter: parent.verticalCenter }
            name: "userIcon"
            color: item.row.isMarked ? Theme.primaryColor : Theme.placeHolderColor
        }
        Column {
            id: texts
            anchors { left: icon.right; leftMargin: 12; right: tick.visible ? tick.left : state.left; rightMargin: 8; verticalCenter: parent.verticalCenter }
            PlainText { width: parent.width; text: item.row.title; font.weight: Font.Medium; Accessible.ignored: true }
            PlainText {
                width: parent.width
                text: item.row.detail
                color: item.row.isMarked ? Theme.primaryColor : Theme.placeHolderColor
                font.pixelSize: Theme.captionSize
                Accessible.ignored: true
            }
        }
        Icon {
            id: tick
            objectName: "tick"
            anchors { right: state.left; rightMargin: 6; verticalCenter: parent.verticalCenter }
            visible: item.row.isComplete
            width: 24
            height: 24
            name: "doneIcon"
            color: Theme.secondaryColor
        }
        Icon {
            id: state
            anchors { right: parent.right; verticalCenter: parent.verticalCenter }
            width: 24
            height: 24
            name: item.row.isMarked ? "warningIcon" : item.row.isFilled ? "editIconBlue" : "chevronRightIcon"
            color: item.row.isMarked ? Theme.primaryColor : Theme.blackColor
        }
    }
}
