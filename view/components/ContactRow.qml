import QtQuick
import QtQuick.Templates as T
import Ombrivane

// One line of what is to be filled in; done or to do by icon and word.
T.AbstractButton {
    id: item

    required property ContactLineAdapter row

    objectName: "contactRow"
    implicitHeight: Math.max(60, texts.implicitHeight + 16)
    enabled: row.tapEnabled
    focusPolicy: Qt.StrongFocus
    Accessible.role: Accessible.Button
    Accessible.name: row.title
    Accessible.description: row.detail
    onClicked: row.tap()
    Keys.onReturnPressed: item.clicked()

    background: Rectangle {
        radius: Theme.fieldRadius
        color: item.down ? Theme.segmentColor : "transparent"
        border.width: item.visualFocus ? 2 : 0
        border.color: Theme.secondaryColor
    }
    contentItem: Item {
        Icon {
            id: icon
            width: 24
            height: 24
            anchors { left: parent.left; verticalCenter: parent.verticalCenter }
            name: "userIcon"
            color: Theme.placeHolderColor
        }
        Column {
            id: texts
            anchors { left: icon.right; leftMargin: 12; right: state.left; rightMargin: 8; verticalCenter: parent.verticalCenter }
            PlainText { width: parent.width; text: item.row.title; font.weight: Font.Medium; Accessible.ignored: true }
            PlainText {
                width: parent.width
                text: item.row.detail
                color: item.row.isFilled ? Theme.secondaryColor : Theme.placeHolderColor
                font.pixelSize: Theme.captionSize
                Accessible.ignored: true
            }
        }
        Icon {
            id: state
            anchors { right: parent.right; verticalCenter: parent.verticalCenter }
            width: 24
            height: 24
            name: item.row.isFilled ? "editIconBlue" : "todoIcon"
            color: item.row.isFilled ? Theme.secondaryColor : Theme.placeHolderColor
        }
    }
}
