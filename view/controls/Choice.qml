import QtQuick
import Ombrivane.Private

// One of a few choices that exclude each other.
MarkedRadio {
    id: button

    implicitHeight: Math.max(Theme.target, label.implicitHeight + 16)
    implicitWidth: label.implicitWidth + 60
    Accessible.name: text

    background: Rectangle {
        radius: Theme.fieldRadius
        color: Theme.formBackgroundColor
        border.width: button.marked ? 2 : 1
        border.color: button.marked ? Theme.secondaryColor : Theme.formBorderColor
    }
    contentItem: Item {
        Icon {
            id: mark
            anchors { left: parent.left; leftMargin: 12 }
            width: 22
            height: 22
            anchors.verticalCenter: parent.verticalCenter
            name: button.marked ? "largecircle.fill.circle" : "circle"
            color: button.marked ? Theme.secondaryColor : Theme.formBorderColor
        }
        PlainText {
            id: label
            anchors { left: mark.right; leftMargin: 10; right: parent.right; rightMargin: 8; verticalCenter: parent.verticalCenter }
            text: button.text
            Accessible.ignored: true
        }
    }
}
