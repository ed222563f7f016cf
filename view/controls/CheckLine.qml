import QtQuick
import Ombrivane.Private

// A box with what it says.
MarkedBox {
    id: button

    implicitHeight: Math.max(Theme.target, label.implicitHeight + 12)
    Accessible.name: text

    background: Rectangle {
        radius: Theme.fieldRadius
        color: "transparent"
    }
    contentItem: Item {
        Icon {
            id: box
            width: 24
            height: 24
            anchors { left: parent.left; verticalCenter: parent.verticalCenter }
            name: button.marked ? "checkmark.square" : "square"
            color: button.marked ? Theme.secondaryColor : Theme.formBorderColor
        }
        PlainText {
            id: label
            anchors { left: box.right; leftMargin: 12; right: parent.right; verticalCenter: parent.verticalCenter }
            text: button.text
            Accessible.ignored: true
        }
    }
}
