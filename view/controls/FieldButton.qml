import QtQuick
import Ombrivane.Private

// A field of a form that opens something: its placeholder rises to a label once it has a value.
FieldFrame {
    id: field

    implicitHeight: Math.max(Theme.fieldHeight, texts.implicitHeight + 12)
    contentItem: Item {
        Icon {
            id: icon
            anchors { left: parent.left; leftMargin: 14 }
            visible: !field.tight
            width: visible ? 22 : 0
            height: 22
            anchors.verticalCenter: parent.verticalCenter
            name: field.iconName
            color: Theme.placeHolderColor
        }
        Column {
            id: texts
            anchors {
                left: icon.right
                leftMargin: icon.visible ? 12 : 0
                right: parent.right
                rightMargin: field.missing || field.inOrder ? 44 : 12
                verticalCenter: parent.verticalCenter
            }
            PlainText {
                visible: field.value !== ""
                width: parent.width
                text: field.placeholder
                color: Theme.placeHolderColor
                font.pixelSize: Theme.smallSize
                spread: 1.1
                Accessible.ignored: true
            }
            PlainText {
                width: parent.width
                text: field.value !== "" ? field.value : field.placeholder
                color: field.value !== "" ? Theme.blackColor : Theme.placeHolderColor
                spread: 1.2
                Accessible.ignored: true
            }
        }
    }
}
